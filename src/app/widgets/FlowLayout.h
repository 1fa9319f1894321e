// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace quillmark::app {

/// Items side by side from the leading edge, wrapped into as many lines as they take.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget *parent, int gap);
    ~FlowLayout() override;

    void setGap(int gap);
    void addItem(QLayoutItem *item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    Qt::Orientations expandingDirections() const override { return {}; }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rectangle) override;

private:
    /// The height that the items take within the rectangle; puts them there if `apply`.
    int arrange(const QRect &rectangle, bool apply) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    int m_gap;
};

} // namespace quillmark::app
