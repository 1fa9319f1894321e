// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/DesktopChoices.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>

#include <utility>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

/// Without one, asking for it could start one.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"_L1);
}

/// The settings that desktops tell sandboxed and other programs of (XDG Desktop Portal).
class DesktopPortal final : public DesktopChoices
{
    Q_OBJECT

public:
    DesktopPortal()
    {
        if (!hasSessionBus())
            return;
        auto bus = QDBusConnection::sessionBus();
        if (!bus.isConnected())
            return;
        const auto path = u"/org/freedesktop/portal/desktop"_s;
        const auto interface = u"org.freedesktop.portal.Settings"_s;
        // From whomever: a name would have Qt wait for the bus to tell its owner.
        bus.connect({}, path, interface, u"SettingChanged"_s, this,
                    SLOT(settingChanged(QString, QString, QDBusVariant)));
        auto question = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, path, interface,
                                                       u"ReadAll"_s);
        question << QStringList{u"org.freedesktop.appearance"_s, u"org.gnome.desktop.interface"_s};
        question.setAutoStartService(false);
        auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
            watcher->deleteLater();
            const QDBusMessage answer = watcher->reply();
            if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == "a{sa{sv}}"_L1)
                takeAll(answer.arguments().constFirst().value<QDBusArgument>());
        });
    }

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
    {
        take(group, key, value.variant());
    }

private:
    void takeAll(const QDBusArgument &groups)
    {
        groups.beginMap();
        while (!groups.atEnd()) {
            QString group;
            QVariantMap settings;
            groups.beginMapEntry();
            groups >> group >> settings;
            groups.endMapEntry();
            for (const auto &[key, value] : std::as_const(settings).asKeyValueRange())
                take(group, key, value);
        }
        groups.endMap();
    }
};

} // namespace

std::unique_ptr<DesktopChoices> DesktopChoices::ofSystem()
{
    return std::make_unique<DesktopPortal>();
}

} // namespace quillmark::app

#include "DesktopPortal.moc"
