// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QString>

#include <functional>

class QTextEdit;

namespace quillmark::app {

/// A longer text, to be read.
class TextDialog : public QDialog
{
    Q_OBJECT

public:
    struct Content
    {
        QString title;
        QString text;
        Qt::TextFormat format = Qt::MarkdownText; ///< or Qt::RichText, or Qt::PlainText
        bool isTranslated = false;                ///< else it is in English, whatever language the window has
    };

    /// `content` is asked again when the language changes.
    TextDialog(std::function<Content()> content, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    std::function<Content()> m_content;
    QTextEdit *m_text;
};

class Actions;

// What there is to read.
TextDialog::Content licences();
TextDialog::Content whatsNew();
TextDialog::Content help(const Actions &actions);

} // namespace quillmark::app
