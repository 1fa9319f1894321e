#include <QTest>
class JsonTest : public QObject { Q_OBJECT };
QTEST_GUILESS_MAIN(JsonTest)
#include "JsonTest.moc"
