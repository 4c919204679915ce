#include "extremes/sharpness.h"
#include "samples.h"
#include "support/rows.h"
#include "support/testing.h"

#include <QPainter>
#include <QScopedPointer>

namespace
{

const qreal ratios[] = {1, 1.5, 2}; // pixels of a screen for each of a widget

// Seen of the samples: 0.93 to 1.73, and at most 44. Blurred pictures have less than 0.45, and a
// picture in another place more than 200.
const double leastSharpness = 0.85;
const double farthestInPlace = 64;

/// A fault to be found: draws itself into a plain picture first, and that onto the screen.
class Blurred : public QWidget
{
public:
    Blurred()
    {
        resize(100, 40);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPixmap plain(size());
        plain.fill(Qt::white);
        QPainter writer(&plain);
        writer.drawText(plain.rect(), Qt::AlignCenter, QLatin1String("Blurred"));
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), plain);
    }
};

/// Another one: takes the pixels of the screen for its own, so that its picture is too small on a
/// finer screen.
class Misplaced : public QWidget
{
public:
    Misplaced()
    {
        resize(100, 40);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const qreal ratio = painter.deviceTransform().m11();
        painter.scale(1 / ratio, 1 / ratio);
        painter.fillRect(10, 10, 80, 20, Qt::black);
    }
};

void forceSize(QWidget* widget, const QSize& size)
{
    widget->setMinimumSize(0, 0);
    widget->setFixedSize(size);
}

/// The warnings, except for what the tests' platform cannot do with windows.
QString withoutPlatform(const QStringList& warnings)
{
    QStringList left;
    for (int i = 0; i < warnings.size(); ++i) {
        if (!warnings.at(i).startsWith(QLatin1String("This plugin does not support ")))
            left.append(warnings.at(i));
    }
    return left.join(QLatin1String("; "));
}

/// Paints once at the plain resolution beforehand: only then are all parts laid out.
QImage paintedPlainly(QWidget* widget)
{
    sharpness::paintedAt(widget, 1);
    return sharpness::paintedAt(widget, 1);
}

void addSamples()
{
    QTest::addColumn<QString>("name");
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << names.at(i);
}

} // namespace

/// Every class in the sizes that layouts and screens may give it.
class tst_sizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void smallAndLarge_data();
    void smallAndLarge();
    void otherResolutions_data();
    void otherResolutions();
    void screenIsPaintedAsAPicture_data();
    void screenIsPaintedAsAPicture();
    void blurIsFound();
    void misplacedPicturesAreFound();
};

void tst_sizes::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
}

void tst_sizes::smallAndLarge_data()
{
    addSamples();
}

void tst_sizes::smallAndLarge()
{
    QFETCH(QString, name);
    const QSize sizes[] = {QSize(0, 0), QSize(1, 1), QSize(1, 4000), QSize(4000, 1),
                           QSize(4000, 4000)};
    for (const QSize& size : sizes) {
        const testing::InRow inRow(
            QString::fromLatin1("%1 x %2").arg(size.width()).arg(size.height()));
        const testing::Messages messages;
        QWidget window; // whose parts may be smaller than their layouts want
        QWidget* const widget = samples::create(name);
        widget->setParent(&window);
        window.show();
        widget->show();
        forceSize(widget, size);
        QCoreApplication::processEvents();
        const QColor ground(Qt::magenta);
        QImage image(size + QSize(1, 1), QImage::Format_RGB32);
        image.fill(ground);
        widget->render(&image);
        QCOMPARE(widget->size(), size);
        QCOMPARE(QColor(image.pixel(size.width(), 0)), ground);
        QCOMPARE(QColor(image.pixel(0, size.height())), ground);
        QCOMPARE(withoutPlatform(messages.warnings()), QString());
    }
}

void tst_sizes::otherResolutions_data()
{
    addSamples();
}

void tst_sizes::otherResolutions()
{
    QFETCH(QString, name);
    const QScopedPointer<QWidget> widget(samples::create(name));
    const QImage plain = paintedPlainly(widget.data());
    for (qreal ratio : ratios) {
        const QImage larger = sharpness::paintedAt(widget.data(), ratio);
        const double farthest = sharpness::farthest(plain, larger);
        const double kept = sharpness::kept(plain, larger, ratio);
        QVERIFY2(farthest < farthestInPlace, qPrintable(QString::number(farthest)));
        QVERIFY2(kept > leastSharpness, qPrintable(QString::number(kept)));
    }
}

void tst_sizes::screenIsPaintedAsAPicture_data()
{
    addSamples();
}

/// Runs with QT_SCALE_FACTOR, too: nothing may ask for the resolution but through the painter.
void tst_sizes::screenIsPaintedAsAPicture()
{
    QFETCH(QString, name);
    const QScopedPointer<QWidget> widget(samples::create(name));
    widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
    paintedPlainly(widget.data());
    QPixmap grabbed(widget->size() * widget->devicePixelRatioF());
    grabbed.setDevicePixelRatio(widget->devicePixelRatioF());
    grabbed.fill(Qt::white);
    widget->render(&grabbed);
    QImage screen = grabbed.toImage();
    screen.setDevicePixelRatio(1);
    const QImage picture = sharpness::paintedAt(widget.data(), widget->devicePixelRatioF());
    CWIDGET_COMPARE_IMAGES(screen.copy(picture.rect()), picture);
}

void tst_sizes::blurIsFound()
{
    Blurred widget;
    const QImage plain = paintedPlainly(&widget);
    for (qreal ratio : ratios) {
        const testing::InRow inRow(QByteArray::number(ratio));
        const QImage larger = sharpness::paintedAt(&widget, ratio);
        QCOMPARE(sharpness::kept(plain, larger, ratio) > leastSharpness, ratio == 1);
    }
}

void tst_sizes::misplacedPicturesAreFound()
{
    Misplaced widget;
    const QImage plain = paintedPlainly(&widget);
    for (qreal ratio : ratios) {
        const testing::InRow inRow(QByteArray::number(ratio));
        const QImage larger = sharpness::paintedAt(&widget, ratio);
        QCOMPARE(sharpness::farthest(plain, larger) < farthestInPlace, ratio == 1);
    }
}

QTEST_MAIN(tst_sizes)
#include "tst_sizes.moc"
