// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/question.h"

#include "app/Appearance.h"
#include "language/texts.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace quillmark::app {

namespace {

class Text
{
    QUILLMARK_TEXTS(Question)
};

// Of the sentence, which Qt would break early, or cut off where it has no room and is shorter than the 500
// pixels from which on Qt breaks lines. So a long one is given more than those.
constexpr int leastWidth = 320;
constexpr int greatestWidth = 560;

/// A box that can only be cancelled so far.
QMessageBox *makeBox(QWidget *asker, const Question &question)
{
    auto *box = new QMessageBox(asker);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(QStringLiteral("Quillmark"));
    box->setText(question.sentence);
    box->setInformativeText(question.consequence);
    // As the boxes of a Mac look by themselves.
    const auto &appearance = Appearance::current();
    if (auto *sentence = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
        sentence->setFont(appearance.font(TextRole::Heading));
        const int width = sentence->fontMetrics().horizontalAdvance(question.sentence);
        sentence->setMinimumWidth(
            std::clamp(width, appearance.scaled(leastWidth), appearance.scaled(greatestWidth)));
    }
    auto *cancel = box->addButton(Text::tr("Cancel"), QMessageBox::RejectRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    return box;
}

} // namespace

void ask(QWidget *asker, const Question &question, const std::function<void()> &confirmed)
{
    auto *box = makeBox(asker, question);
    auto *act = box->addButton(question.verb, QMessageBox::DestructiveRole);
    QObject::connect(act, &QAbstractButton::clicked, asker, confirmed);
    box->open();
}

void ask(QWidget *asker, const Question &question, const QList<Answer> &answers)
{
    auto *box = makeBox(asker, question);
    for (const auto &answer : answers) {
        auto *button = box->addButton(answer.verb, QMessageBox::AcceptRole);
        QObject::connect(
            button, &QAbstractButton::clicked, asker, [run = answer.run] { run(); }, Qt::QueuedConnection);
    }
    box->open();
}

} // namespace quillmark::app
