// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QString>

namespace quillmark::app {

/// A radio button with a symbol, a title (its text) and a description, on a card.
class FormatCard : public QAbstractButton
{
    Q_OBJECT

public:
    explicit FormatCard(const QString &symbol, QWidget *parent = nullptr);

    void setDescription(const QString &description);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
    QString m_description;
};

} // namespace quillmark::app
