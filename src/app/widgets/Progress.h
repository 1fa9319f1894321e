// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace quillmark::app {

/// A ring that turns while something goes on, then a check mark. Decoration: the words beside it say the
/// same.
class Progress : public QWidget
{
    Q_OBJECT

public:
    explicit Progress(QWidget *parent = nullptr);

    void setDone(bool isDone);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void turn();

    bool m_isDone = false;
    QVariantAnimation m_turn; ///< the angle, in degrees
};

} // namespace quillmark::app
