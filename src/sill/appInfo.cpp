// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/appInfo.h"

#include "sill/desktop.h"

namespace boulix {

namespace {

constexpr const char *programTitle = "boulix";
constexpr int programMinor = 0;
constexpr int programRevision = 3;

} // namespace

void appInfo::init(const std::string &disclaimer, const std::string &author,
                   const std::string &company, std::int32_t copyrightYear) {
    name_ = programTitle;
    version_ = std::to_string(programMajor) + "." + std::to_string(programMinor) + "." +
               std::to_string(programRevision);
    fullName_ = name_ + " Version " + version_;
    description_.clear();
    disclaimer_ = disclaimer;
    author_ = author;
    company_ = company;
    copyright_ = copyrightYear;
}

void appInfo::showSplash() const {
    SplashTexts texts;
    texts.lblVersion = "Version " + version_;
    texts.lblProductName = name_;
    texts.lblCompany = company_;
    texts.lblCopyright = "(c) " + std::to_string(copyright_);
    texts.lblPlatform = "Windows 98, ME, NT, 2000, XP";
    texts.lblWarning = disclaimer_;
    desktop().showSplash(texts);
}

} // namespace boulix
