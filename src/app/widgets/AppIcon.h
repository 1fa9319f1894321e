// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace quillmark::app {

/// The icon of the program. Decoration: screen readers pass it by.
class AppIcon : public QWidget
{
    Q_OBJECT

public:
    /// `side` at the usual size of text.
    explicit AppIcon(int side, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_side;
};

} // namespace quillmark::app
