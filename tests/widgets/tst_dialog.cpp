#include "support/testing.h"

#include "widgets/dialog.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>

using testing::canvas;
using testing::render;

class tst_dialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void virtuals();
    void sizes();
    void borderWidthIsNeverNegative();
    void settersStoreAndRepaint();
    void paintsNothingByItself();
    void paintsFillAndBorder();
    void borderTakesTheBackgroundColor();
    void visibleIsNeverEmitted();
};

void tst_dialog::defaults()
{
    CDialog dialog;
    QCOMPARE(dialog.getBorderWidth(), 0);
    QVERIFY(!dialog.getBorderColor().isValid());
    QVERIFY(!dialog.getBackgroundColor().isValid());
    QCOMPARE(dialog.windowFlags(), QDialog().windowFlags());
    const QMetaObject& meta = CDialog::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QVERIFY(meta.indexOfSignal("visible(bool)") >= meta.methodOffset());
}

void tst_dialog::virtuals()
{
    CDialog dialog;
    const QImage before = render(&dialog);
    QVERIFY(dialog.initialize());
    QVERIFY(dialog.load(QLatin1String("x")));
    QVERIFY(dialog.save(QLatin1String("y")));
    QVERIFY(dialog.objectName().isEmpty());
    QVERIFY(dialog.windowTitle().isEmpty());
    CWIDGET_COMPARE_IMAGES(render(&dialog), before);
}

void tst_dialog::sizes()
{
    CDialog dialog;
    dialog.setSize(200, 100);
    QCOMPARE(dialog.minimumSize(), QSize(200, 100));
    QCOMPARE(dialog.maximumSize(), QSize(200, 100));
    dialog.setWidth(150);
    QCOMPARE(dialog.size(), QSize(150, 100));
    dialog.setHeight(90);
    QCOMPARE(dialog.minimumSize(), QSize(150, 90));
}

void tst_dialog::borderWidthIsNeverNegative()
{
    CDialog dialog;
    dialog.setBorderWidth(-3);
    QCOMPARE(dialog.getBorderWidth(), 0);
    dialog.setBorderWidth(3);
    QCOMPARE(dialog.getBorderWidth(), 3);
}

void tst_dialog::settersStoreAndRepaint()
{
    CDialog dialog;
    dialog.resize(60, 40);
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    QVERIFY(testing::repaints(&dialog, [&dialog] { dialog.setBorderWidth(2); }));
    QVERIFY(testing::repaints(&dialog, [&dialog] { dialog.setBorderColor(Qt::red); }));
    QVERIFY(testing::repaints(&dialog, [&dialog] { dialog.setBackgroundColor(Qt::blue); }));
    QCOMPARE(dialog.getBorderColor(), QColor(Qt::red));
    QCOMPARE(dialog.getBackgroundColor(), QColor(Qt::blue));
}

void tst_dialog::paintsNothingByItself()
{
    CDialog dialog;
    dialog.setSize(60, 40);
    CWIDGET_COMPARE_IMAGES(render(&dialog), canvas(&dialog));
}

void tst_dialog::paintsFillAndBorder()
{
    for (int width = 0; width < 5; ++width) {
        CDialog dialog;
        dialog.setSize(60, 40);
        dialog.setBackgroundColor(Qt::yellow);
        dialog.setBorderColor(Qt::red);
        dialog.setBorderWidth(width);
        QImage expected = canvas(&dialog, Qt::yellow);
        if (width > 0) {
            QPainter painter(&expected);
            painter.setPen(
                QPen(QColor(Qt::red), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.drawRect(width / 2, width / 2, 60 - width, 40 - width);
        }
        CWIDGET_COMPARE_IMAGES(render(&dialog), expected);
    }
}

void tst_dialog::borderTakesTheBackgroundColor()
{
    CDialog dialog;
    dialog.setSize(60, 40);
    dialog.setBackgroundColor(Qt::yellow);
    dialog.setBorderWidth(3);
    CWIDGET_COMPARE_IMAGES(render(&dialog), canvas(&dialog, Qt::yellow));
}

void tst_dialog::visibleIsNeverEmitted()
{
    CDialog dialog;
    QSignalSpy spy(&dialog, SIGNAL(visible(bool)));
    QVERIFY(spy.isValid());
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    dialog.hide();
    dialog.reject();
    QCOMPARE(spy.count(), 0);
}

QTEST_MAIN(tst_dialog)
#include "tst_dialog.moc"
