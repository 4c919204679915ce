#include "pages/pagebar.h"
#include "support/rows.h"
#include "support/testing.h"
#include "widgets/pushbutton.h"

#include <QLayout>
#include <QPainter>

namespace
{

const CWidgetStyle::PageBarType horizontal = CWidgetStyle::HorizontalPageBar;
const CWidgetStyle::PageBarType vertical = CWidgetStyle::VerticalPageBar;

CPushButton* arrow(const CPageBar& bar, int index)
{
    return bar.findChildren<CPushButton*>().at(index);
}

/// A bar without its arrows: just what it paints itself.
void hideArrows(CPageBar* bar)
{
    arrow(*bar, 0)->hide();
    arrow(*bar, 1)->hide();
}

QFont barFont(const CPageBar& bar)
{
    QFont font = bar.font();
    font.setPixelSize(14);
    return font;
}

QImage horizontalText(const CPageBar& bar, const char* text, const QColor& color = Qt::black)
{
    QImage image = testing::canvas(&bar);
    QPainter painter(&image);
    painter.setFont(barFont(bar));
    painter.setPen(color);
    painter.drawText(QRect(0, 0, bar.width(), bar.height()), Qt::AlignCenter,
                     QString::fromLatin1(text));
    return image;
}

QImage verticalText(const CPageBar& bar, const char* text)
{
    QImage image = testing::canvas(&bar);
    QPainter painter(&image);
    painter.setFont(barFont(bar));
    painter.setPen(Qt::black);
    painter.translate(static_cast<int>(bar.width() * 0.5), static_cast<int>(bar.height() * 0.45));
    painter.rotate(90.0);
    painter.drawText(QPointF(0.0, 4.0), QString::fromLatin1(text));
    return image;
}

struct ArrowRow {
    CWidgetStyle::PageBarType type;
    int arrow;
    CWidgetStyle::PageSwitchStatus released;
    CWidgetStyle::PageSwitchStatus pressed;
};

const ArrowRow arrows[] = {
    {horizontal, 0, CWidgetStyle::PrevReleased, CWidgetStyle::PrevPressed},
    {horizontal, 1, CWidgetStyle::NextReleased, CWidgetStyle::NextPressed},
    {vertical, 0, CWidgetStyle::DownReleased, CWidgetStyle::DownPressed},
    {vertical, 1, CWidgetStyle::UpReleased, CWidgetStyle::UpPressed},
};

} // namespace

class tst_pagebar_painting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textFollowsThePages();
    void textHasItsColorAndItsSize();
    void backgroundAndBorderAreTheBaseWidgets();
    void turnedText_data();
    void turnedText();
    void arrowsShowTheirPictures();
    void textIsBetweenTheArrows();
};

void tst_pagebar_painting::textFollowsThePages()
{
    CPageBar bar;
    hideArrows(&bar);
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 0 of 0"));
    bar.addPage();
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 1 of 1"));
    bar.addPage();
    bar.addPage();
    bar.rightClicked();
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 2 of 3"));
    bar.setCurrentIndex(-1);
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 3 of 3"));
    bar.rightClicked();
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 1 of 3"));
    bar.removePage(0);
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 1 of 2"));
    bar.clear();
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 0 of 0"));
}

void tst_pagebar_painting::textHasItsColorAndItsSize()
{
    CPageBar bar;
    hideArrows(&bar);
    bar.setTextColor(Qt::blue);
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 0 of 0", Qt::blue));
    bar.setFont(testing::testFont(30, true)); // the size of the text stays 14
    QCOMPARE(barFont(bar).pixelSize(), 14);
    QVERIFY(barFont(bar).bold());
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), horizontalText(bar, "Page 0 of 0", Qt::blue));
}

void tst_pagebar_painting::backgroundAndBorderAreTheBaseWidgets()
{
    CPageBar bar;
    hideArrows(&bar);
    bar.setTextColor(Qt::transparent);
    bar.setBackgroundColor(Qt::white);
    bar.setBorderColor(Qt::black);
    bar.setBorderWidth(1);
    QImage expected = testing::canvas(&bar, Qt::black);
    QPainter(&expected).fillRect(1, 1, 148, 28, Qt::white);
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), expected);
}

void tst_pagebar_painting::turnedText_data()
{
    QTest::addColumn<int>("height");
    QTest::newRow("even") << 300;
    QTest::newRow("odd") << 301;
    QTest::newRow("low") << 140;
}

void tst_pagebar_painting::turnedText()
{
    QFETCH(int, height);
    CPageBar bar(nullptr, vertical);
    hideArrows(&bar);
    bar.resize(24, height);
    bar.addPage();
    bar.addPage();
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), verticalText(bar, "Page 1 of 2"));
}

void tst_pagebar_painting::arrowsShowTheirPictures()
{
    for (size_t i = 0; i < sizeof arrows / sizeof arrows[0]; ++i) {
        const testing::InRow inRow(i);
        CPageBar bar(nullptr, arrows[i].type);
        bar.setBackgroundColor(Qt::white);
        CPushButton* button = arrow(bar, arrows[i].arrow);
        const QPixmap released = CWidgetStyle::getPageSwitchStatus(arrows[i].released);
        const QPixmap pressed = CWidgetStyle::getPageSwitchStatus(arrows[i].pressed);
        QVERIFY(!released.isNull() && !pressed.isNull());
        QImage expected = testing::canvas(button, Qt::white);
        QPainter(&expected).drawPixmap(0, 0, released);
        CWIDGET_COMPARE_IMAGES(testing::render(button), expected);
        QTest::mousePress(button, Qt::LeftButton);
        QImage expectedPressed = testing::canvas(button, Qt::white);
        QPainter(&expectedPressed).drawPixmap(0, 0, pressed);
        CWIDGET_COMPARE_IMAGES(testing::render(button), expectedPressed);
        QTest::mouseRelease(button, Qt::LeftButton);
        CWIDGET_COMPARE_IMAGES(testing::render(button), expected);
    }
}

void tst_pagebar_painting::textIsBetweenTheArrows()
{
    CPageBar bar;
    bar.setSize(220, 30);
    bar.layout()->activate();
    for (int i = 0; i < 9; ++i)
        bar.addPage();
    QImage expected = horizontalText(bar, "Page 1 of 9");
    for (int i = 0; i < 2; ++i) {
        QPainter painter(&expected);
        painter.drawImage(arrow(bar, i)->pos(), testing::render(arrow(bar, i)));
    }
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), expected);
}

QTEST_MAIN(tst_pagebar_painting)
#include "tst_pagebar_painting.moc"
