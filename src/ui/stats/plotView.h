// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QCPAbstractPlottable;
class QCPTextElement;
class QCustomPlot;

namespace boulix {

class PlotPane;

/// The plotting control on the screen: draws the state of a `PlotPane`. The wheel zooms, dragging
/// moves, a double click brings the whole curve back; the value under the mouse is shown; the
/// context menu keeps the picture as a file.
class PlotView : public QWidget {
    Q_OBJECT

  public:
    /// Shows `pane`, which must live longer than the view.
    explicit PlotView(PlotPane &pane, QWidget *parent = nullptr);
    ~PlotView() override;

    QSize sizeHint() const override { return {620, 420}; }
    QSize minimumSizeHint() const override { return {260, 200}; }
    /// The text beside the mouse at `x` of the abscissa; empty where no point is near.
    QString valueAt(double x) const;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    /// + and - zoom, the arrows move, 0 and Home bring the whole curve back.
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void dress();
    QString description() const;
    void redraw();
    void drawAxes();
    void drawCurves();
    void drawExpected();
    void dressCurves();
    QCPAbstractPlottable *makeBars();
    QCPAbstractPlottable *makeGraph();
    void followUser();
    void makeMenu();
    void savePng();
    void saveSvg();
    void showAll();

    PlotPane &pane_;
    QCustomPlot *plot_;
    QCPTextElement *legend_ = nullptr; ///< over the plot, while there is something to tell
    bool drawing_ = false;
};

} // namespace boulix
