// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

namespace quillmark::app {

using namespace Qt::StringLiterals;

namespace {

constexpr int answerTime = 500; // ms
constexpr int attempts = 20;
constexpr int betweenAttempts = 100; // ms: the first may only just be starting

/// Short, since a socket's path may not be longer than about a hundred bytes.
QString pathFor(const QString &purpose)
{
    const auto hash = QCryptographicHash::hash(purpose.toUtf8(), QCryptographicHash::Sha256);
    const auto name = u"quillmark-"_s + QString::fromLatin1(hash.toHex().first(16));
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    return folder.filePath(name);
}

} // namespace

SingleInstance::SingleInstance(const QString &purpose, QObject *parent)
    : QObject(parent)
    , m_socket(pathFor(purpose))
    , m_lock(m_socket + u".lock"_s)
{
    // A lock is as old as the window has been open; whether its owner still runs is seen by its number.
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (auto *caller = m_server.nextPendingConnection())
            caller->deleteLater();
        Q_EMIT activated();
    });
}

bool SingleInstance::claim()
{
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (m_lock.tryLock(0)) {
            listen();
            return true;
        }
        if (m_lock.error() != QLockFile::LockFailedError)
            return true;
        if (callFirst())
            return false;
        QThread::msleep(betweenAttempts);
    }
    return false; // it is there, whether or not it answers
}

bool SingleInstance::callFirst() const
{
    QLocalSocket socket;
    socket.connectToServer(m_socket);
    return socket.waitForConnected(answerTime);
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(m_socket); // of one that ended without tidying up
    m_server.listen(m_socket);
}

} // namespace quillmark::app
