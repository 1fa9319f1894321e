// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>

namespace quillmark::support {

/// Who vouches for servers, for as long as a test runs.
class CertificateAuthority
{
public:
    CertificateAuthority()
    {
        openssl({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-new"),
                 QStringLiteral("-subj"), QStringLiteral("/CN=Test"), QStringLiteral("-days"),
                 QStringLiteral("2"), QStringLiteral("-keyout"), path(QStringLiteral("ca.key")),
                 QStringLiteral("-out"), path(QStringLiteral("ca.pem"))},
                newKey());
    }

    QSslCertificate certificate() const { return read(QStringLiteral("ca.pem")); }

    /// What a server by that name shows; it ends in `days`, which may be past.
    QSslConfiguration serverNamed(const QString &host, int days = 2) const
    {
        openssl({QStringLiteral("req"), QStringLiteral("-new"), QStringLiteral("-subj"),
                 QStringLiteral("/CN=Server"), QStringLiteral("-addext"),
                 QStringLiteral("subjectAltName=DNS:") + host, QStringLiteral("-keyout"),
                 path(QStringLiteral("server.key")), QStringLiteral("-out"),
                 path(QStringLiteral("server.csr"))},
                newKey());
        openssl({QStringLiteral("x509"), QStringLiteral("-req"), QStringLiteral("-copy_extensions"),
                 QStringLiteral("copy"), QStringLiteral("-in"), path(QStringLiteral("server.csr")),
                 QStringLiteral("-CA"), path(QStringLiteral("ca.pem")), QStringLiteral("-CAkey"),
                 path(QStringLiteral("ca.key")), QStringLiteral("-days"), QString::number(days),
                 QStringLiteral("-out"), path(QStringLiteral("server.pem"))});
        QFile key(path(QStringLiteral("server.key")));
        if (!key.open(QIODevice::ReadOnly))
            qFatal("%s", qPrintable(key.errorString()));
        auto configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(read(QStringLiteral("server.pem")));
        configuration.setPrivateKey(QSslKey(&key, QSsl::Ec));
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        return configuration;
    }

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QSslCertificate read(const QString &name) const
    {
        const auto all = QSslCertificate::fromPath(path(name));
        if (all.isEmpty())
            qFatal("openssl wrote no certificate");
        return all.first();
    }

    static QStringList newKey()
    {
        return {QStringLiteral("-newkey"), QStringLiteral("ec"), QStringLiteral("-pkeyopt"),
                QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-nodes")};
    }

    static void openssl(const QStringList &arguments, const QStringList &more = {})
    {
        QProcess process;
        process.start(QStringLiteral(QUILLMARK_OPENSSL), arguments + more);
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("openssl: %s", process.readAllStandardError().constData());
    }

    QTemporaryDir m_folder;
};

} // namespace quillmark::support
