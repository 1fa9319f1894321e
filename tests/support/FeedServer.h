// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayList>
#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>

#include <functional>

namespace quillmark::support {

/// What a server sends, byte for byte, and whether it then goes on.
struct Reply
{
    enum class Then { Close, Flood, Drip };

    QByteArray bytes;
    Then then = Then::Close;
};

inline Reply answer(const QByteArray &status, const QByteArray &headers = {}, const QByteArray &body = {})
{
    return {"HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
            QByteArray::number(body.size()) + "\r\n" + headers + "\r\n" + body};
}

/// An HTTPS server on the loopback interface, on the thread that makes it.
class FeedServer
{
public:
    using Handler = std::function<Reply(const QByteArray &request)>;

    FeedServer(const QSslConfiguration &configuration, Handler handler)
        : m_handler(std::move(handler))
    {
        m_server.setSslConfiguration(configuration);
        QObject::connect(&m_server, &QTcpServer::pendingConnectionAvailable, &m_server, [this] {
            while (auto *socket = m_server.nextPendingConnection())
                serve(socket);
        });
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("%s", qPrintable(m_server.errorString()));
    }

    QUrl url(const QString &path = QStringLiteral("/feed.xml")) const
    {
        QUrl url(QStringLiteral("https://localhost") + path);
        url.setPort(m_server.serverPort());
        return url;
    }

    /// The heads of all requests, in their order.
    QByteArrayList requests;

private:
    void serve(QTcpSocket *socket)
    {
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        const auto read = [this, socket, head = QByteArray()]() mutable {
            head += socket->readAll();
            if (!head.endsWith("\r\n\r\n"))
                return;
            requests.append(head);
            send(socket, m_handler(head));
        };
        QObject::connect(socket, &QTcpSocket::readyRead, socket, read);
        if (socket->bytesAvailable() > 0)
            Q_EMIT socket->readyRead();
    }

    static void send(QTcpSocket *socket, const Reply &reply)
    {
        socket->write(reply.bytes);
        if (reply.then == Reply::Then::Close) {
            socket->disconnectFromHost();
            return;
        }
        const bool isFlood = reply.then == Reply::Then::Flood;
        auto *timer = new QTimer(socket);
        timer->callOnTimeout(socket, [socket = qobject_cast<QSslSocket *>(socket),
                                      block = QByteArray(isFlood ? 64 * 1024 : 1, ' ')] {
            if (socket->encryptedBytesToWrite() == 0)
                socket->write(block);
        });
        timer->start(isFlood ? 0 : 20);
    }

    QSslServer m_server;
    Handler m_handler;
};

} // namespace quillmark::support
