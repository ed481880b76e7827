// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QTimer>

#include <array>

class QFrame;
class QPushButton;

namespace boulix {

class appInfo;
class CreditPicture;

/// The about box. Two picture boxes with the same credits climb through a frame, one under the
/// other; the one that has left by the top comes in again from below.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    explicit frmAbout(const appInfo &info, QWidget *parent = nullptr);

    /// One step of the scroll.
    void tick();
    /// The picture box that climbs; the other one follows under it.
    CreditPicture *activePicture() const { return picInfo_[active_]; }

  private:
    void makeCredits(const appInfo &info);
    void layOut();
    void placeFollower();

    QFrame *frameInfo;
    std::array<CreditPicture *, 2> picInfo_{};
    QPushButton *CMD_OK;
    QTimer *Timer;
    std::size_t active_ = 0;
};

} // namespace boulix
