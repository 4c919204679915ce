#include "support/testing.h"

#include "samples.h"
#include "stylereaders.h"

#include <CWidget>
#include <QScopedPointer>

using stylereaders::Reader;
using testing::TemporaryFolder;

namespace
{

// A size and colours that no widget has by itself.
const int markerSize = 27;
const char markerForeground[] = "#13f2a7";
const char markerBackground[] = "#f213a7";

const Style::Field fields[] = {Style::FieldName, Style::FieldValue, Style::FieldAll};

QByteArray markedField(Style::Field field)
{
    const QByteArray element = stylereaders::elementOf(field).toLatin1();
    return "<" + element + "><font family=\"Liberation Sans\" size=\"" +
           QByteArray::number(markerSize) + "\" bold=\"true\"/><color foreground-color=\"" +
           markerForeground + "\" background-color=\"" + markerBackground + "\"/></" + element +
           ">";
}

/// A style file in which only \a field of \a name says anything; all other entries are emptied.
QByteArray markedFile(const QString& name, Style::Field field)
{
    QByteArray content = "<r>";
    const QStringList all = stylereaders::names() + samples::names();
    for (int i = 0; i < all.size(); ++i)
        content += "<widget type=\"1\" name=\"" + all.at(i).toLatin1() + "\"/>";
    return content + "<widget type=\"1\" name=\"" + name.toLatin1() + "\">" + markedField(field) +
           "</widget></r>";
}

QList<QWidget*> partsOf(QWidget* widget)
{
    return QList<QWidget*>() << widget << widget->findChildren<QWidget*>();
}

bool hasMarkedFont(const QList<QWidget*>& widgets)
{
    for (int i = 0; i < widgets.size(); ++i) {
        if (widgets.at(i)->font().pixelSize() == markerSize)
            return true;
    }
    return false;
}

bool paints(const QImage& image, const char* color)
{
    const QRgb wanted = QColor(QLatin1String(color)).rgb();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == wanted)
                return true;
        }
    }
    return false;
}

/// Which of the markers \a widget shows.
int takenParts(QWidget* widget)
{
    const QImage image = testing::render(widget);
    int taken = stylereaders::Nothing;
    if (hasMarkedFont(partsOf(widget)))
        taken |= stylereaders::Font;
    if (paints(image, markerForeground))
        taken |= stylereaders::Foreground;
    if (paints(image, markerBackground))
        taken |= stylereaders::Background;
    return taken;
}

} // namespace

class tst_stylereaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreThereOnce();
    void classesTakeWhatTheTableSays_data();
    void classesTakeWhatTheTableSays();
    void everyBaseWidgetTakesItsFontWhenUpdated_data();
    void everyBaseWidgetTakesItsFontWhenUpdated();

private:
    TemporaryFolder m_folder;
};

void tst_stylereaders::namesAreThereOnce()
{
    QStringList names = stylereaders::names();
    QVERIFY(names.size() >= 20);
    QCOMPARE(names.removeDuplicates(), 0);
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(QString::fromLatin1(stylereaders::find(names.at(i))->name), names.at(i));
    QVERIFY(!stylereaders::find(QLatin1String("clabel")));
    QVERIFY(!stylereaders::find(QString()));
}

void tst_stylereaders::classesTakeWhatTheTableSays_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("field");
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i) {
        for (const Style::Field field : fields) {
            const QByteArray row =
                names.at(i).toLatin1() + ' ' + stylereaders::elementOf(field).toLatin1();
            QTest::newRow(row.constData()) << names.at(i) << static_cast<int>(field);
        }
    }
}

void tst_stylereaders::classesTakeWhatTheTableSays()
{
    QFETCH(QString, name);
    QFETCH(int, field);
    const Style::Field part = static_cast<Style::Field>(field);
    QVERIFY(CWidgetStyle::initialize(
        m_folder.write(QLatin1String("marked.xml"), markedFile(name, part))));
    const Reader* const reader = stylereaders::find(name);
    const bool whenConstructed = reader && reader->moment == stylereaders::WhenConstructed;
    QScopedPointer<QWidget> widget(samples::create(name));
    QCOMPARE(takenParts(widget.data()),
             whenConstructed ? stylereaders::partsOf(*reader, part) : +stylereaders::Nothing);
}

void tst_stylereaders::everyBaseWidgetTakesItsFontWhenUpdated_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = samples::names();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(names.at(i).toLatin1().constData()) << names.at(i);
}

/// updateWidgetStyle() is the base class's: it reads the FieldAll font of the class's own entry,
/// and so such a class must be in the table. Others are there only for their constructor.
void tst_stylereaders::everyBaseWidgetTakesItsFontWhenUpdated()
{
    QFETCH(QString, name);
    QScopedPointer<QWidget> widget(samples::create(name));
    QVERIFY(CWidgetStyle::initialize(
        m_folder.write(QLatin1String("marked.xml"), markedFile(name, Style::FieldAll))));
    CWidget* const base = qobject_cast<CWidget*>(widget.data());
    const Reader* const reader = stylereaders::find(name);
    if (!base) {
        QVERIFY(!reader || reader->moment == stylereaders::WhenConstructed);
        return;
    }
    QVERIFY(base->font().pixelSize() != markerSize);
    base->updateWidgetStyle();
    QCOMPARE(base->font().pixelSize(), markerSize);
    QVERIFY(reader);
    if (reader->moment == stylereaders::WhenUpdated)
        QCOMPARE(stylereaders::partsOf(*reader, Style::FieldAll), +stylereaders::Font);
}

QTEST_MAIN(tst_stylereaders)
#include "tst_stylereaders.moc"
