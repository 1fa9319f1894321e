#include <QTest>
class CliTest : public QObject { Q_OBJECT };
QTEST_GUILESS_MAIN(CliTest)
#include "CliTest.moc"
