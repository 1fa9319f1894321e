// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/dialogs/UpdateNotices.h"

#include "app/dialogs/TextDialog.h"
#include "app/settingKeys.h"
#include "app/widgets/question.h"
#include "reports/Report.h"
#include "update/updateTexts.h"

#include <QDesktopServices>

namespace quillmark::app {

using update::Trigger;
using update::UpdateChecker;

UpdateNotices::UpdateNotices(UpdateChecker &updates, settings::Settings &settings, NoticeBar &notices,
                             QWidget *window)
    : QObject(window)
    , m_updates(updates)
    , m_settings(settings)
    , m_notices(notices)
    , m_window(window)
{
    connect(&updates, &UpdateChecker::finished, this, &UpdateNotices::tell);
}

void UpdateNotices::begin()
{
    if (const auto &known = m_updates.lastResult())
        tell(*known, Trigger::Start);
    m_updates.checkIfDue();
}

void UpdateNotices::checkNow(QWidget *window)
{
    if (m_updates.host().isEmpty()) {
        tell(update::CheckFailure{.reason = update::CheckFailure::Reason::BadAddress}, Trigger::OnDemand);
        return;
    }
    if (m_updates.hasConsent()) {
        m_updates.checkNow();
        return;
    }
    const auto once = [this] { m_updates.check(Trigger::ThisOnce); };
    const auto daily = [this] {
        m_updates.setConsent(true);
        m_updates.checkNow();
    };
    //: %1 is the name of a server
    ask(window,
        {//: %1 is the name of a server
         .sentence = tr("May Quillmark ask %1 whether there is a newer version?").arg(m_updates.host()),
         .consequence = update::consentNote()},
        QList<Answer>{{tr("Ask once a day"), daily}, {tr("Ask this once"), once}});
}

void UpdateNotices::tell(const update::CheckResult &result, Trigger trigger)
{
    const bool isAsked = trigger != Trigger::Start;
    if (const auto *available = std::get_if<update::Available>(&result)) {
        const auto &found = available->offer;
        const bool isKnown =
            available->isSkipped || m_settings.value(keys::closedUpdate) == found.version.text();
        if (isAsked || found.isCritical || !isKnown)
            offer(found);
        return;
    }
    if (!isAsked)
        return;
    if (const auto *failure = std::get_if<update::CheckFailure>(&result)) {
        m_notices.show({.kind = Notice::Kind::Error,
                        .sentence = tr("Couldn’t check for updates."),
                        .detail = reasonText(*failure, m_updates.feed())});
        return;
    }
    if (const auto running = update::Version::parse(reports::applicationVersion()))
        m_notices.show({.kind = Notice::Kind::Success, .sentence = headline(result, *running)});
}

void UpdateNotices::offer(const update::Offer &offer)
{
    using Weight = Notice::Button::Weight;
    Notice notice{.kind = Notice::Kind::Update,
                  .sentence = offer.isCritical
                                  ? tr("Quillmark %1 is available, an important update.").arg(offer.title)
                                  : tr("Quillmark %1 is available.").arg(offer.title),
                  .detail = tr("You have version %1.").arg(reports::applicationVersion())};
    const auto version = offer.version;
    notice.closed = [this, version] { m_settings.setValue(keys::closedUpdate, version.text()); };
    if (!offer.releaseNotes.isEmpty() || !offer.notes.isEmpty())
        notice.buttons += {tr("What’s new"), [this, offer] { showNotes(offer); }, Weight::Plain};
    notice.buttons += {tr("Skip this version"), [this, version] { m_updates.skip(version); }, Weight::Plain};
    if (!offer.downloadPage.isEmpty())
        notice.buttons += {tr("Download…"), [page = offer.downloadPage] { QDesktopServices::openUrl(page); },
                           Weight::Primary};
    m_notices.show(notice);
}

void UpdateNotices::showNotes(const update::Offer &offer)
{
    if (!offer.releaseNotes.isEmpty()) {
        QDesktopServices::openUrl(offer.releaseNotes);
        return;
    }
    const auto content = [offer] {
        return TextDialog::Content{.title = tr("What’s new in Quillmark %1").arg(offer.title),
                                   .text = offer.notes,
                                   .format = Qt::PlainText};
    };
    auto *dialog = new TextDialog(content, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace quillmark::app
