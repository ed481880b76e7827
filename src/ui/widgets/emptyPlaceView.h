// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace boulix {

struct EmptyPlace;

/// The quiet sentence that stands in the middle of an empty list or board. Its link can be clicked
/// and be reached with the Tab key.
class EmptyPlaceView : public QLabel {
    Q_OBJECT

  public:
    /// Lies over `ground`, whose size it follows when it is told to by `cover`.
    explicit EmptyPlaceView(QWidget *ground);

    /// Shows `place`; hides where it says nothing.
    void tell(const EmptyPlace &place);
    /// Takes all the room of the ground but a margin.
    void cover();

  protected:
    void changeEvent(QEvent *event) override;
};

} // namespace boulix
