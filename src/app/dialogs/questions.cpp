// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/questions.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace quillmark::app {

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Question)
};

} // namespace

void ask(const Question &question, QWidget *window)
{
    auto *box = new QMessageBox(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(question.isDestructive ? QMessageBox::Warning : QMessageBox::Question);
    box->setTextFormat(Qt::PlainText);
    box->setText(question.text);
    box->setInformativeText(question.detail);
    auto *cancel = box->addButton(Text::tr("Cancel"), QMessageBox::RejectRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    const auto role = question.isDestructive ? QMessageBox::DestructiveRole : QMessageBox::AcceptRole;
    for (const auto &answer : question.answers) {
        auto *button = box->addButton(answer.verb, role);
        // When the box has gone, since what follows may ask again.
        QObject::connect(
            button, &QPushButton::clicked, window, [run = answer.run] { run(); }, Qt::QueuedConnection);
    }
    box->open();
}

} // namespace quillmark::app
