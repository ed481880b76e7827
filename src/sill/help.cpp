// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/help.h"

#include "core/text.h"
#include "sill/desktop.h"

namespace boulix::help {

void Show(const std::string &file, const std::string &window,
          std::optional<std::int32_t> contextId) {
    const std::string target = window.empty() ? file : trimmed(file) + ">" + trimmed(window);
    desktop().showHelp(target, contextId);
}

} // namespace boulix::help
