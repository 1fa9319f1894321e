// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

namespace quillmark::app {

/// A question before something that somebody may not want. Its safe answer is "Cancel", which Return and Esc
/// give.
struct Question
{
    struct Answer
    {
        QString verb; ///< on its button
        std::function<void()> run;
    };

    QString text;
    QString detail;
    QList<Answer> answers;
    bool isDestructive = false;
};

/// Asks above the window and returns at once.
void ask(const Question &question, QWidget *window);

} // namespace quillmark::app
