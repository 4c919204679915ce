#include "support/testing.h"

#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "widgets/pushbutton.h"

// What a finger's touch may cost, counted in events and pictures and not in time.

namespace
{

QStringList numberedTexts(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::fromLatin1("item %1").arg(i));
    return texts;
}

/// How often \a button is painted until nothing is left to do after \a action.
template <typename Action>
int paintsAfter(QWidget* button, Action action)
{
    QCoreApplication::processEvents();
    testing::EventCounter paints(button, QEvent::Paint);
    action();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return paints.count();
}

} // namespace

class tst_cost : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void paintSender()
    {
        static_cast<QWidget*>(sender())->repaint();
    }

private Q_SLOTS:
    void touchPaintsOncePerLook();
    void slotPaintsTheTouchedButton();
    void buttonsShareTheirPictures();
    void turnedPageChangesTwoPagesOfRows();
};

void tst_cost::touchPaintsOncePerLook()
{
    CPushButton button;
    button.setStyle(CPushButton::GreenStyle, true);
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    const int pressed = paintsAfter(&button, [&] { QTest::mousePress(&button, Qt::LeftButton); });
    QCOMPARE(pressed, 1);
    const int released =
        paintsAfter(&button, [&] { QTest::mouseRelease(&button, Qt::LeftButton); });
    QCOMPARE(released, 1);
    QVERIFY(button.updatesEnabled());
}

void tst_cost::slotPaintsTheTouchedButton()
{
    CPushButton button;
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    connect(&button, SIGNAL(clicked()), SLOT(paintSender()));
    QTest::mousePress(&button, Qt::LeftButton);
    testing::EventCounter paints(&button, QEvent::Paint);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(paints.count() >= 1);
}

void tst_cost::buttonsShareTheirPictures()
{
    CPushButton one;
    CPushButton other;
    one.setStyle(CPushButton::RedStyle, true);
    other.setStyle(CPushButton::RedStyle, true);
    QCOMPARE(one.getBackground().cacheKey(), other.getBackground().cacheKey());
    other.setStyle(CPushButton::RedStyle, false);
    QVERIFY(one.getBackground().cacheKey() != other.getBackground().cacheKey());
}

void tst_cost::turnedPageChangesTwoPagesOfRows()
{
    CPageListWidget list;
    list.addItems(numberedTexts(1000));
    list.show(500);
    QVERIFY(testcompat::waitForWindow(&list));
    QCoreApplication::processEvents();
    QList<testing::EventCounter*> counters;
    const QList<CPageListWidgetItem*> rows = list.findChildren<CPageListWidgetItem*>();
    for (int i = 0; i < rows.size(); ++i) {
        counters.append(new testing::EventCounter(rows.at(i), QEvent::Show));
        counters.append(new testing::EventCounter(rows.at(i), QEvent::Hide));
    }
    CPageListWidgetItemArea* area = list.findChild<CPageListWidgetItemArea*>();
    testing::EventCounter layouts(area, QEvent::LayoutRequest);
    area->setCurrentPage(3);
    QCoreApplication::processEvents();
    int changes = 0;
    for (int i = 0; i < counters.size(); ++i)
        changes += counters.at(i)->count();
    qDeleteAll(counters);
    QCOMPARE(changes, 10);
    QVERIFY(layouts.count() <= 1);
}

QTEST_MAIN(tst_cost)
#include "tst_cost.moc"
