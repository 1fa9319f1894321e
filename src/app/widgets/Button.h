// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>
#include <QString>

namespace quillmark::app {

/// A button with a word and, if wanted, a symbol.
class Button : public QPushButton
{
    Q_OBJECT

public:
    enum class Kind {
        Normal,
        Primary, ///< what most people want here; one at most
        Plain,   ///< words only, for what is wanted less
    };

    /// No symbol: an empty name.
    explicit Button(Kind kind, const QString &symbol = {}, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void applyAppearance();

    Kind m_kind;
    QString m_symbol;
};

} // namespace quillmark::app
