// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

class QDialog;
class QHBoxLayout;

namespace boulix {

/// The row under a dialog of settings: `CMD_OK`, the default button, which calls `confirm`, and
/// `CMD_Cancel`, which rejects the dialog.
QHBoxLayout *makeOkCancelRow(QDialog &dialog, const std::function<void()> &confirm);

} // namespace boulix
