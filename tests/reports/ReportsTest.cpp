#include <QTest>
class ReportsTest : public QObject { Q_OBJECT };
QTEST_GUILESS_MAIN(ReportsTest)
#include "ReportsTest.moc"
