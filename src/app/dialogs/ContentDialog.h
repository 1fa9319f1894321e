// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QDialog>

class QScrollArea;
class QVBoxLayout;

namespace quillmark::app {

/// A dialog that is as wide as is usual for it, or as its longest words need, and as tall as its content.
/// Where the screen is too low for that, the content scrolls and what stands above and below it stays.
class ContentDialog : public QDialog
{
    Q_OBJECT

public:
    /// The ground of the content; that of the footer is the window's.
    void setGround(design::Role ground);

protected:
    /// `width` at the usual size of text.
    ContentDialog(int width, QWidget *parent);

    QVBoxLayout *column() const { return m_column; }
    void setHeader(QWidget *header);
    void setFooter(QWidget *footer); ///< with a line above

    /// Sets all texts, in the language of now.
    virtual void retranslate() = 0;
    /// To be called at the end of the constructor.
    void setUp();
    /// Makes the size that of the content. To be called when that has changed.
    void fit();

    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    int m_usualWidth;
    design::Role m_ground = design::Role::Window;
    QScrollArea *m_area;
    QWidget *m_content;
    QVBoxLayout *m_column;
    QVBoxLayout *m_frame;
    QWidget *m_footer = nullptr;
    bool m_isSetUp = false;
};

} // namespace quillmark::app
