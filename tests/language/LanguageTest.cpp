#include <QTest>
class LanguageTest : public QObject { Q_OBJECT };
QTEST_GUILESS_MAIN(LanguageTest)
#include "LanguageTest.moc"
