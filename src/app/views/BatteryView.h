// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/views/Page.h"

#include <QPointer>

#include <vector>

namespace quillmark::app {

class BatteryPanel;
class BatteryWatch;
class Card;
class EmptyState;
class TextLabel;

/// How each battery of the machine is. Reads them again while the page can be seen.
class BatteryView : public Page
{
    Q_OBJECT

public:
    explicit BatteryView(const AppContext &context, QWidget *parent = nullptr);

    QString headerTitle() const override;
    bool isSearchable() const override { return false; }

protected:
    void retranslate() override;
    void arrange() override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    class Explanations;
    void update();
    void followWindow();

    const AppContext &m_context;
    BatteryWatch *m_watch;
    std::vector<BatteryPanel *> m_panels; ///< one for each battery
    Explanations *m_explanations;
    TextLabel *m_note;
    EmptyState *m_none;
    QPointer<QWidget> m_window;
};

} // namespace quillmark::app
