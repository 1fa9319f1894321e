#include <QTest>
class RecordedMachineTest : public QObject { Q_OBJECT };
QTEST_GUILESS_MAIN(RecordedMachineTest)
#include "RecordedMachineTest.moc"
