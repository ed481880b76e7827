// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace boulix {

/// The program's own major version number, which decides what files it can read.
inline constexpr int programMajor = 4;

/// Who the program is: its name stands in every data file, its version too.
class appInfo {
  public:
    /// Takes title, version and description from the program, the rest from the arguments.
    void init(const std::string &disclaimer, const std::string &author, const std::string &company,
              std::int32_t copyrightYear);
    /// Fills the splash window and shows it without blocking.
    void showSplash() const;

    const std::string &name() const { return name_; }
    void name(const std::string &v) { name_ = v; }
    const std::string &version() const { return version_; }
    void version(const std::string &v) { version_ = v; }
    const std::string &fullName() const { return fullName_; }
    void fullName(const std::string &v) { fullName_ = v; }
    const std::string &description() const { return description_; }
    void description(const std::string &v) { description_ = v; }
    const std::string &disclaimer() const { return disclaimer_; }
    void disclaimer(const std::string &v) { disclaimer_ = v; }
    const std::string &author() const { return author_; }
    void author(const std::string &v) { author_ = v; }
    const std::string &company() const { return company_; }
    void company(const std::string &v) { company_ = v; }
    std::int32_t copyright() const { return copyright_; }
    void copyright(std::int32_t v) { copyright_ = v; }

  private:
    std::string name_;
    std::string version_;
    std::string fullName_;
    std::string description_;
    std::string disclaimer_;
    std::string author_;
    std::string company_;
    std::int32_t copyright_ = 0;
};

} // namespace boulix
