// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

/// The number at the start of a value of the settings file, with a dot whatever the regional
/// settings; 0 where there is none, or none that single precision can hold.
float settingNumber(const std::string &section, const std::string &key,
                    const std::string &defaultValue);

/// The whole of a text box as a decimal number, dot or comma; anything else fails with
/// `Failure::typeMismatch`, a number beyond single precision with `Failure::overflow`.
float typedNumber(const std::string &text);

} // namespace boulix
