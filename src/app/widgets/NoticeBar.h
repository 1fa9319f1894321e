// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <functional>

namespace quillmark::app {

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
        QString text;
        std::function<void()> run; ///< the notice closes first
    };

    Kind kind = Kind::Success;
    QString sentence;
    QString detail;
    QList<Button> buttons;
    std::function<void()> closed; ///< by the user, not by a newer notice; may be empty
};

/// The bar under the header that shows one notice at a time: the newest. It is not there while there is none.
class NoticeBar : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    void show(const Notice &notice);
    bool isShown() const { return m_isShown; }
    void dismiss(); ///< as the close button does

private:
    bool m_isShown = false;
};

} // namespace quillmark::app
