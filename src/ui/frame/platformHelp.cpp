// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/platformHelp.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include "core/text.h"
#include "sill/help.h"

#include <QLibrary>

#include <algorithm>
#endif

namespace boulix {

#ifdef Q_OS_WIN

bool showPlatformHelp(const std::string &target, std::optional<std::int32_t> context) {
    using HtmlHelp =
        void *(__stdcall *)(void *owner, const char *target, unsigned command, std::uintptr_t data);
    constexpr unsigned displayTopic = 0;
    constexpr unsigned helpContext = 15;
    const auto htmlHelp =
        reinterpret_cast<HtmlHelp>(QLibrary::resolve(QStringLiteral("hhctrl.ocx"), "HtmlHelpA"));
    if (!htmlHelp)
        return false;
    if (context && help::pageName(*context) != std::to_string(*context)) {
        // The compiled file has names for its pages, no numbers.
        const std::size_t window = std::min(target.find('>'), target.size());
        const std::string page = target.substr(0, window) + "::/" + help::pageName(*context) +
                                 ".html" + target.substr(window);
        htmlHelp(nullptr, toWestern(page).c_str(), displayTopic, 0);
        return true;
    }
    htmlHelp(nullptr, toWestern(target).c_str(), context ? helpContext : displayTopic,
             context ? static_cast<std::uintptr_t>(*context) : 0);
    return true;
}

#else

bool showPlatformHelp(const std::string &, std::optional<std::int32_t>) {
    return false;
}

#endif

} // namespace boulix
