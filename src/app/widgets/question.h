// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

namespace quillmark::app {

/// Something that is done only once a person has said so.
struct Question
{
    QString sentence;
    QString consequence;
    QString verb = {}; ///< on the button that does it
};

/// Asks in the system's own way, in front of the widget's window, without waiting for the answer. Whoever
/// just presses Return changes nothing. The question goes with the widget.
void ask(QWidget *asker, const Question &question, const std::function<void()> &confirmed);

struct Answer
{
    QString verb; ///< on its button
    std::function<void()> run;
};

/// With several ways to say yes, none of which takes anything away. They run when the question is gone.
void ask(QWidget *asker, const Question &question, const QList<Answer> &answers);

} // namespace quillmark::app
