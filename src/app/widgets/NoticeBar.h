// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "design/Theme.h"

#include <QList>
#include <QString>
#include <QVariantAnimation>
#include <QWidget>

#include <chrono>
#include <functional>

class QLabel;
class QTimer;

namespace quillmark::app {

class IconButton;

/// Something that the window tells without stopping anybody's work.
struct Notice
{
    enum class Kind {
        Success, ///< leaves by itself
        Update,  ///< stays until closed
        Error,   ///< stays until closed
    };
    struct Button
    {
        enum class Weight { Plain, Usual, Primary };

        QString text;
        std::function<void()> run; ///< the notice closes first
        Weight weight = Weight::Usual;
    };

    Kind kind = Kind::Success;
    QString sentence;
    QString detail;
    QList<Button> buttons;
    std::function<void()> closed; ///< by the user, not by a newer notice; may be empty
};

/// The bar under the header that shows one notice at a time: the newest. It is not there while there is none.
///
/// A success stays as long as the pointer or the focus is on it. Esc closes what has the focus.
class NoticeBar : public QWidget
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds usualStay{6000};

    /// A success stays for that long.
    explicit NoticeBar(QWidget *parent = nullptr, std::chrono::milliseconds stay = usualStay);

    void show(const Notice &notice);
    bool isShown() const { return m_isShown; }
    void dismiss(); ///< as the close button does

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void addButtons();
    void applyAppearance();
    struct Places;
    Places placesFor(int width) const;
    void putInPlace();
    void retranslate();
    void stayOrLeave();
    void leave();
    void slide(qreal from, qreal to);

    Notice m_notice;
    bool m_isShown = false;
    QLabel *m_text;
    QWidget *m_buttons;
    IconButton *m_close;
    QTimer *m_stay;
    QVariantAnimation m_slide; ///< the share of the height that is there: the bar comes from above
};

} // namespace quillmark::app
