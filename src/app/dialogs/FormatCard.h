// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QString>

namespace quillmark::app {

class WrappedText;

/// A radio button with a symbol, a title (its text) and a description, on a card.
class FormatCard : public QAbstractButton
{
    Q_OBJECT

public:
    explicit FormatCard(const QString &symbol, QWidget *parent = nullptr);

    void setDescription(const QString &description);
    QSize sizeHint() const override;
    /// A description that is too long for its line has a second one.
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static qreal textsBegin();
    WrappedText description(qreal width) const;

    QString m_symbol;
    QString m_description;
};

} // namespace quillmark::app
