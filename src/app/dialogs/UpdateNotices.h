// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/widgets/NoticeBar.h"
#include "settings/Settings.h"
#include "update/UpdateChecker.h"

#include <QObject>

namespace quillmark::app {

/// Tells of newer versions in the notice bar, and asks before a server is asked that nobody has agreed to.
class UpdateNotices : public QObject
{
    Q_OBJECT

public:
    UpdateNotices(update::UpdateChecker &updates, settings::Settings &settings, NoticeBar &notices,
                  QWidget *window);

    /// At the start of the program: what is known already, and what the daily check finds. Failures of it
    /// stay unsaid.
    void begin();
    /// Because the user wants to know. Asks first where that is needed, above `window`.
    void checkNow(QWidget *window);

private:
    void tell(const update::CheckResult &result, update::Trigger trigger);
    void offer(const update::Offer &offer);
    void showNotes(const update::Offer &offer);

    update::UpdateChecker &m_updates;
    settings::Settings &m_settings;
    NoticeBar &m_notices;
    QWidget *m_window;
};

} // namespace quillmark::app
