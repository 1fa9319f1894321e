// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/question.h"

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

void ask(QWidget *asker, const Question &question, const std::function<void()> &confirmed)
{
    auto *box = new QMessageBox(asker);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Question);
    box->setText(question.sentence);
    box->setInformativeText(question.consequence);
    auto *cancel = box->addButton(Text::tr("Cancel"), QMessageBox::RejectRole);
    auto *act = box->addButton(question.verb, QMessageBox::DestructiveRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    QObject::connect(act, &QAbstractButton::clicked, asker, confirmed);
    box->open();
}

} // namespace quillmark::app
