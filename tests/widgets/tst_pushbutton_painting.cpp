#include "support/rows.h"
#include "support/testing.h"

#include "widgets/pushbutton.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>

using testing::canvas;
using testing::render;
using testing::testFont;

namespace
{

QPixmap halves(const QSize& size, const QColor& left, const QColor& right)
{
    QPixmap pixmap(size);
    pixmap.fill(left);
    QPainter(&pixmap).fillRect(size.width() / 2, 0, size.width(), size.height(), right);
    return pixmap;
}

/// An icon that looks different in every mode and state.
QIcon signIcon()
{
    QIcon icon;
    const QSize size(16, 16);
    icon.addPixmap(halves(size, Qt::red, Qt::green), QIcon::Normal, QIcon::Off);
    icon.addPixmap(halves(size, Qt::blue, Qt::yellow), QIcon::Normal, QIcon::On);
    icon.addPixmap(halves(size, Qt::gray, Qt::black), QIcon::Disabled, QIcon::Off);
    icon.addPixmap(halves(size, Qt::white, Qt::cyan), QIcon::Disabled, QIcon::On);
    return icon;
}

/// An application's own button that leaves its edge to Qt.
class OwnButton : public CPushButton
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect().adjusted(5, 5, -5, -5), Qt::green);
    }
};

void paintText(QPainter* painter, const CPushButton& button, const QRect& rect)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setFont(button.font());
    painter->setPen(button.getTextColor());
    painter->drawText(rect, Qt::AlignCenter, button.getText());
}

} // namespace

class tst_pushbutton_painting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void backgroundWithAlpha();
    void noBackground();
    void ownPaintingKeepsTheGround();
    void border();
    void borderUnderPicture();
    void pictureFillsTheButton();
    void pictureWithHolesShowsBackgroundAndBorder();
    void textIsCentred();
    void textSizeZeroHidesTheText();
    void negativeTextSizeShowsTheText();
    void longTextIsNotWrapped();
    void iconAloneIsCentred();
    void iconBesideText_data();
    void iconBesideText();
    void iconOfModeAndState();
    void iconSmallerThanItsSizeIsScaled();
    void hiddenTextLeavesTheIconWhereItIs();
    void everythingAtOnce();
};

void tst_pushbutton_painting::newButton()
{
    CPushButton button;
    CWIDGET_COMPARE_IMAGES(render(&button), canvas(&button, QColor(0x63, 0x5E, 0x80)));
}

void tst_pushbutton_painting::backgroundWithAlpha()
{
    CPushButton button;
    const QColor color(200, 0, 0, 100);
    button.setBackgroundColor(color);
    button.setAutoFillBackground(false);
    QImage expected = canvas(&button);
    QPainter painter(&expected);
    painter.setPen(color);
    painter.setBrush(color);
    painter.drawRect(0, 0, 120, 40);
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::noBackground()
{
    CPushButton button;
    button.setBackgroundColor(QColor());
    button.setAutoFillBackground(false);
    CWIDGET_COMPARE_IMAGES(render(&button), canvas(&button));
}

/// Qt fills a button under what an application paints on it, however often that is done.
void tst_pushbutton_painting::ownPaintingKeepsTheGround()
{
    OwnButton button;
    button.setPalette(QPalette(Qt::blue));
    QImage expected = canvas(&button, button.palette().color(QPalette::Button));
    QPainter(&expected).fillRect(button.rect().adjusted(5, 5, -5, -5), Qt::green);
    for (int i = 0; i < 3; ++i) {
        const testing::InRow inRow(i);
        CWIDGET_COMPARE_IMAGES(render(&button), expected);
    }
}

void tst_pushbutton_painting::border()
{
    CPushButton button;
    button.setBackgroundColor(Qt::white);
    button.setBorderColor(Qt::red);
    QImage expected = canvas(&button, Qt::red);
    QPainter(&expected).fillRect(2, 2, 116, 36, Qt::white);
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::borderUnderPicture()
{
    CPushButton button;
    button.setBorderColor(Qt::red);
    button.setBackground(halves(QSize(120, 40), Qt::blue, Qt::blue));
    CWIDGET_COMPARE_IMAGES(render(&button), canvas(&button, Qt::blue));
}

void tst_pushbutton_painting::pictureFillsTheButton()
{
    const QSize sizes[] = {QSize(120, 40), QSize(60, 20), QSize(200, 90), QSize(7, 3)};
    for (size_t i = 0; i < sizeof sizes / sizeof sizes[0]; ++i) {
        const testing::InRow inRow(i);
        CPushButton button;
        const QPixmap picture = halves(sizes[i], Qt::blue, Qt::yellow);
        button.setBackground(picture);
        QImage expected = canvas(&button, button.getBackgroundColor());
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawPixmap(QRect(0, 0, 120, 40), picture);
        painter.end();
        CWIDGET_COMPARE_IMAGES(render(&button), expected);
    }
}

void tst_pushbutton_painting::pictureWithHolesShowsBackgroundAndBorder()
{
    CPushButton button;
    button.setBackgroundColor(Qt::white);
    button.setBorderColor(Qt::red);
    QPixmap picture(120, 40);
    picture.fill(Qt::transparent);
    QPainter(&picture).fillRect(50, 0, 20, 40, Qt::blue);
    button.setBackground(picture);
    QImage expected = canvas(&button, Qt::red);
    QPainter painter(&expected);
    painter.fillRect(2, 2, 116, 36, Qt::white);
    painter.fillRect(50, 0, 20, 40, Qt::blue);
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::textIsCentred()
{
    CPushButton button;
    button.setFont(testFont(14, true));
    button.setTextColor(Qt::white);
    button.setText(QLatin1String("Start"));
    QImage expected = canvas(&button, button.getBackgroundColor());
    QPainter painter(&expected);
    paintText(&painter, button, QRect(0, 0, 120, 40));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
    QVERIFY(expected != canvas(&button, button.getBackgroundColor()));
    QCOMPARE(static_cast<int>(Qt::AlignCenter), 132);
}

void tst_pushbutton_painting::textSizeZeroHidesTheText()
{
    CPushButton button;
    button.setFont(testFont(14));
    button.setText(QLatin1String("Start"));
    const QImage shown = render(&button);
    button.setTextSize(0);
    CWIDGET_COMPARE_IMAGES(render(&button), canvas(&button, button.getBackgroundColor()));
    button.setTextSize(40);
    CWIDGET_COMPARE_IMAGES(render(&button), shown);
    QCOMPARE(button.font().pixelSize(), 14);
}

void tst_pushbutton_painting::negativeTextSizeShowsTheText()
{
    CPushButton button;
    button.setFont(testFont(14));
    button.setText(QLatin1String("Start"));
    const QImage shown = render(&button);
    button.setTextSize(-1);
    CWIDGET_COMPARE_IMAGES(render(&button), shown);
}

void tst_pushbutton_painting::longTextIsNotWrapped()
{
    CPushButton button;
    button.setFont(testFont(14));
    button.setText(QLatin1String("a text that is far too long for the button it stands on"));
    QImage expected = canvas(&button, button.getBackgroundColor());
    QPainter painter(&expected);
    paintText(&painter, button, QRect(0, 0, 120, 40));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::iconAloneIsCentred()
{
    CPushButton button;
    button.setIcon(signIcon());
    button.setIconSize(QSize(16, 16));
    QImage expected = canvas(&button, button.getBackgroundColor());
    // (120 - 1) / 2 - 16 / 2 = 51, (40 - 1) / 2 - 16 / 2 = 11
    QPainter(&expected).drawPixmap(51, 11, halves(QSize(16, 16), Qt::red, Qt::green));
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::iconBesideText_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("iconX");
    QTest::addColumn<int>("iconY");
    QTest::addColumn<int>("textX");
    QTest::newRow("16") << 16 << 4 << 11 << 21;
    QTest::newRow("15") << 15 << 5 << 12 << 20;
    QTest::newRow("24") << 24 << 4 << 7 << 29;
    QTest::newRow("31") << 31 << 5 << 4 << 36;
}

void tst_pushbutton_painting::iconBesideText()
{
    QFETCH(int, size);
    QFETCH(int, iconX);
    QFETCH(int, iconY);
    QFETCH(int, textX);
    const QPixmap sign = halves(QSize(size, size), Qt::red, Qt::green);
    CPushButton button;
    button.setFont(testFont(14));
    button.setText(QLatin1String("Start"));
    button.setIcon(QIcon(sign));
    button.setIconSize(QSize(size, size));
    QImage expected = canvas(&button, button.getBackgroundColor());
    QPainter painter(&expected);
    painter.drawPixmap(iconX, iconY, sign);
    paintText(&painter, button, QRect(QPoint(textX, 0), QPoint(119, 39)));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::iconOfModeAndState()
{
    const QSize size(16, 16);
    const struct {
        bool enabled;
        bool checked;
        QPixmap sign;
    } rows[] = {
        {true, false, halves(size, Qt::red, Qt::green)},
        {true, true, halves(size, Qt::blue, Qt::yellow)},
        {false, false, halves(size, Qt::gray, Qt::black)},
        {false, true, halves(size, Qt::white, Qt::cyan)},
    };
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        const testing::InRow inRow(i);
        CPushButton button;
        button.setIcon(signIcon());
        button.setIconSize(size);
        button.setCheckable(true);
        button.setChecked(rows[i].checked);
        button.setEnabled(rows[i].enabled);
        QImage expected = canvas(&button, button.getBackgroundColor());
        QPainter(&expected).drawPixmap(51, 11, rows[i].sign);
        CWIDGET_COMPARE_IMAGES(render(&button), expected);
    }
}

void tst_pushbutton_painting::iconSmallerThanItsSizeIsScaled()
{
    const QPixmap sign = halves(QSize(8, 8), Qt::red, Qt::green);
    CPushButton button;
    button.setIcon(QIcon(sign));
    button.setIconSize(QSize(20, 20));
    QImage expected = canvas(&button, button.getBackgroundColor());
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(QRect(49, 9, 20, 20), sign);
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::hiddenTextLeavesTheIconWhereItIs()
{
    CPushButton button;
    button.setText(QLatin1String("Start"));
    button.setTextSize(0);
    button.setIcon(signIcon());
    button.setIconSize(QSize(16, 16));
    QImage expected = canvas(&button, button.getBackgroundColor());
    QPainter(&expected).drawPixmap(4, 11, halves(QSize(16, 16), Qt::red, Qt::green));
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

void tst_pushbutton_painting::everythingAtOnce()
{
    CPushButton button;
    button.setFixedSize(90, 33);
    button.setFont(testFont(12));
    button.setStyle(CPushButton::GreenStyle, true);
    button.setBorderColor(Qt::red);
    button.setText(QLatin1String("Go"));
    button.setIcon(signIcon());
    button.setIconSize(QSize(16, 16));
    QImage expected = canvas(&button, Qt::red);
    QPainter painter(&expected);
    painter.fillRect(2, 2, 86, 29, button.getBackgroundColor());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(QRect(0, 0, 90, 33),
                       CWidgetStyle::getButtonStatus(CWidgetStyle::GreenReleased, true));
    // (33 - 1) / 2 - 16 / 2 = 8
    painter.drawPixmap(4, 8, halves(QSize(16, 16), Qt::red, Qt::green));
    paintText(&painter, button, QRect(QPoint(21, 0), QPoint(89, 32)));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&button), expected);
}

QTEST_MAIN(tst_pushbutton_painting)
#include "tst_pushbutton_painting.moc"
