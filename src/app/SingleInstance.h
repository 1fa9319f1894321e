// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

#include <memory>

namespace quillmark::app {

/// One running window for each user and purpose: whoever comes second has the first one come forward.
///
/// They meet at a socket that only the user can reach, beside a lock that tells whether somebody listens.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `purpose` tells windows apart that may stand side by side, such as those of different recordings.
    explicit SingleInstance(const QString &purpose, QObject *parent = nullptr);

    /// Whether this is the first; it stays so for as long as the object lives. If not, the first one has been
    /// asked to come forward. Where no lock can be had at all, everybody is the first.
    bool claim();

Q_SIGNALS:
    /// Another start of the program wants the window to come forward.
    void activated();

private:
    bool callFirst() const;
    void listen();

    QString m_socket; ///< path
    QLockFile m_lock;
    QLocalServer m_server;
};

} // namespace quillmark::app
