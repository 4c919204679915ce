#include "support/rows.h"
#include "support/testing.h"

#include "keypad/keypadfactory.h"
#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "pages/pagewidget.h"
#include "parm/parmcombobox.h"
#include "ui_everyclass.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/progressbar.h"
#include "widgets/pushbutton.h"

#include <QBuffer>
#include <QMetaEnum>
#include <QPluginLoader>
#include <QScopedPointer>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace
{

const char pluginFolder[] = CWIDGET_BINARY_DIR "/plugins/designer";
const char formFile[] = CWIDGET_SOURCE_DIR "/tests/designer/everyclass.ui";

// What the form sets, as texts.
const struct Row {
    const char* object;
    const char* className;
    const char* property;
    const char* value;
} rows[] = {
    // clang-format off
    {"ground",           "CWidget",                 "width",           "200"},
    {"dialog",           "CDialog",                 "width",           "200"},
    {"pageWidget",       "CPageWidget",             "count",           "2"},
    {"graphicsView",     "CGraphicsView",           "borderWidth",     "3"},
    {"topTitleArea",     "CTopTitleArea",           "title",           "Titles"},
    {"pushButton",       "CPushButton",             "text",            "Start"},
    {"pushButton",       "CPushButton",             "buttonStyle",     "1"},
    {"plainButton",      "CPushButton",             "selected",        "true"},
    {"plainButton",      "CPushButton",             "borderColor",     "#ff0000"},
    {"label",            "CLabel",                  "text",            "Alarm in the third row"},
    {"label",            "CLabel",                  "alignment",       "130"},
    {"wrappedLabel",     "CLabel",                  "wrapMode",        "1"},
    {"checkBox",         "CCheckBox",               "checked",         "true"},
    {"lineEdit",         "CLineEdit",               "title",           "Set point"},
    {"lineEdit",         "CLineEdit",               "keypadType",      "3"},
    {"lineEdit",         "CLineEdit",               "maximum",         "30"},
    {"lineEdit",         "CLineEdit",               "rangeEnabled",    "true"},
    {"progressBar",      "CProgressBar",            "value",           "150"},
    {"clockProgress",    "CClockProgress",          "format",          "1"},
    {"pageBar",          "CPageBar",                "currentIndex",    "2"},
    {"comboBox",         "CComboBox",               "currentIndex",    "2"},
    {"pageListWidget",   "CPageListWidget",         "title",           "Mode"},
    {"pageListHeader",   "CPageListWidgetHeader",   "text",            "Auto"},
    {"pageListItem",     "CPageListWidgetItem",     "selected",        "true"},
    {"pageListItemArea", "CPageListWidgetItemArea", "maxVisibleRows",  "3"},
    {"parmLabel",        "CParmLabel",              "proportion",      "2"},
    {"parmLabel",        "CParmLabel",              "fieldWidth",      "300"},
    {"parmLineEdit",     "CParmLineEdit",           "keypadType",      "3"},
    {"parmLineEdit",     "CParmLineEdit",           "readOnly",        "true"},
    {"parmComboBox",     "CParmComboBox",           "currentIndex",    "1"},
    {"parmCheckBox",     "CParmCheckBox",           "checked",         "true"},
    {"keyButton",        "CKeyButton",              "key",             "65"},
    {"keyPadEdit",       "CKeyPadEdit",             "height",          "82"},
    {"abstractKeyPad",   "CAbstractKeyPad",         "width",           "300"},
    {"genKeyPad",        "CGenKeyPad",              "height",          "300"},
    {"numKeyPad",        "CNumKeyPad",              "width",           "560"},
    {"hexKeyPad",        "CHexKeyPad",              "width",           "560"},
    {"softKeyPad",       "CSoftKeyPad",             "keypadType",      "1"},
    // clang-format on
};

QString textOf(const QVariant& value)
{
    if (value.userType() == qMetaTypeId<Qt::Alignment>()) // Qt 6 would write its names
        return QString::number(static_cast<int>(value.value<Qt::Alignment>()));
    if (value.canConvert<QColor>() && value.value<QColor>().isValid() && !value.canConvert<int>())
        return value.value<QColor>().name();
    return value.canConvert<int>() && value.toString().isEmpty() ? QString::number(value.toInt())
                                                                 : value.toString();
}

/// The classes that the plugin must offer: all of the library's that are widgets.
QStringList widgetClasses()
{
    QStringList names;
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        const QString name = QString::fromLatin1(rows[i].className);
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}

/// What \a form shows on a screen, when its layouts have settled.
QImage lookOf(QWidget* form)
{
    form->show();
    if (!testcompat::waitForWindow(form))
        qFatal("no window");
    QTest::qWait(20);
    return testing::render(form);
}

QWidget* load(QUiLoader* loader, const QByteArray& form)
{
    QBuffer buffer;
    buffer.setData(form);
    buffer.open(QIODevice::ReadOnly);
    return loader->load(&buffer);
}

} // namespace

class tst_designerplugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void offersEveryWidget();
    void tellsWhatDesignerShows_data();
    void tellsWhatDesignerShows();
    void firstLookCanBeLoaded_data();
    void firstLookCanBeLoaded();
    void loadedFormHasItsProperties_data();
    void loadedFormHasItsProperties();
    void compiledFormHasItsProperties_data();
    void compiledFormHasItsProperties();
    void loadedFormLooksLikeWidgetsMadeByHand();
    void compiledFormLooksLikeTheLoadedOne();
    void pagesAreInThePageWidget();
    void compiledFormTakesItsTextsAgain();

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
    QUiLoader* m_loader;
    QScopedPointer<QWidget> m_form;
    QScopedPointer<QWidget> m_compiled;
    Ui::EveryClass m_ui;
};

void tst_designerplugin::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
    m_loader = new QUiLoader(this);
    m_loader->clearPluginPaths();
    m_loader->addPluginPath(QLatin1String(pluginFolder));
    QPluginLoader plugin(QLatin1String(pluginFolder) +
                         QLatin1String("/quorlin-cwidget-designer.so"));
    const QDesignerCustomWidgetCollectionInterface* const collection =
        qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
    QVERIFY2(collection, qPrintable(plugin.errorString()));
    m_widgets = collection->customWidgets();
    m_form.reset(load(m_loader, testing::contentOf(QLatin1String(formFile))));
    QVERIFY2(m_form, qPrintable(m_loader->errorString()));
    m_compiled.reset(new QWidget);
    m_ui.setupUi(m_compiled.data());
}

void tst_designerplugin::offersEveryWidget()
{
    // Every public class that has a widget's meta-object, by its forwarding header.
    const QStringList headers =
        QDir(QLatin1String(CWIDGET_BINARY_DIR "/forwarding")).entryList(QDir::Files);
    const QStringList others = QString::fromLatin1("CWidgetStyle,KQWidgetStack,CParmField,"
                                                   "CKeyPadFactory,CHotplugWatcher,QDeviceWatcher,"
                                                   "QDeviceChangeEvent")
                                   .split(QLatin1Char(','));
    const QStringList offered = m_loader->availableWidgets();
    int widgets = 0;
    for (int i = 0; i < headers.size(); ++i) {
        if (others.contains(headers.at(i)))
            continue;
        ++widgets;
        QVERIFY2(offered.contains(headers.at(i)), qPrintable(headers.at(i)));
        QVERIFY2(widgetClasses().contains(headers.at(i)), qPrintable(headers.at(i)));
    }
    QCOMPARE(widgets, 28);
    QCOMPARE(m_widgets.size(), widgets);
}

void tst_designerplugin::tellsWhatDesignerShows_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_widgets.size(); ++i)
        QTest::newRow(qPrintable(m_widgets.at(i)->name())) << i;
}

void tst_designerplugin::tellsWhatDesignerShows()
{
    QFETCH(int, index);
    QDesignerCustomWidgetInterface* const plugin = m_widgets.at(index);
    const QStringList containers =
        QString::fromLatin1("CWidget,CDialog,CPageWidget,CTopTitleArea,CAbstractKeyPad")
            .split(QLatin1Char(','));
    QCOMPARE(plugin->group(), QString::fromLatin1("Quorlin Widgets"));
    QCOMPARE(plugin->includeFile(), QString::fromLatin1("<%1>").arg(plugin->name()));
    QCOMPARE(plugin->isContainer(), containers.contains(plugin->name()));
    QVERIFY(plugin->toolTip().size() > 5);
    QCOMPARE(plugin->whatsThis(), plugin->toolTip());
    const QImage icon = plugin->icon().pixmap(24, 24).toImage();
    QVERIFY(icon.width() == 24 || icon.height() == 24);
    int opaque = 0;
    for (int x = 0; x < icon.width(); ++x)
        opaque += qAlpha(icon.pixel(x, icon.height() / 2)) > 0 ? 1 : 0;
    QVERIFY(opaque > 3);
    for (int i = 0; i < index; ++i) // no two widgets look alike
        QVERIFY2(m_widgets.at(i)->icon().pixmap(24, 24).toImage() != icon,
                 qPrintable(m_widgets.at(i)->name()));
}

void tst_designerplugin::firstLookCanBeLoaded_data()
{
    tellsWhatDesignerShows_data();
}

void tst_designerplugin::firstLookCanBeLoaded()
{
    QFETCH(int, index);
    testing::Messages messages;
    const QString xml = m_widgets.at(index)->domXml();
    const QScopedPointer<QWidget> widget(load(m_loader, xml.toUtf8()));
    QVERIFY2(widget, qPrintable(m_loader->errorString()));
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), m_widgets.at(index)->name());
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(widget->width(),
             xml.section(QLatin1String("<width>"), 1, 1).section(QLatin1Char('<'), 0, 0).toInt());
    if (CPageWidget* const pages = qobject_cast<CPageWidget*>(widget.data()))
        QCOMPARE(pages->count(), 2);
}

void tst_designerplugin::loadedFormHasItsProperties_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow((QByteArray(rows[i].object) + "." + rows[i].property).constData())
            << static_cast<int>(i);
}

void tst_designerplugin::loadedFormHasItsProperties()
{
    QFETCH(int, index);
    const Row& row = rows[index];
    const QWidget* const widget = m_form->findChild<QWidget*>(QString::fromLatin1(row.object));
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), row.className);
    QCOMPARE(textOf(widget->property(row.property)), QString::fromLatin1(row.value));
}

void tst_designerplugin::compiledFormHasItsProperties_data()
{
    loadedFormHasItsProperties_data();
}

void tst_designerplugin::compiledFormHasItsProperties()
{
    QFETCH(int, index);
    const Row& row = rows[index];
    const QWidget* const widget = m_compiled->findChild<QWidget*>(QString::fromLatin1(row.object));
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), row.className);
    QCOMPARE(textOf(widget->property(row.property)), QString::fromLatin1(row.value));
}

void tst_designerplugin::loadedFormLooksLikeWidgetsMadeByHand()
{
    QWidget form;
    form.resize(m_form->size());
    CPushButton* const button = new CPushButton(&form);
    button->move(320, 50);
    button->setStyle(CPushButton::GreenStyle, true);
    button->setText(QLatin1String("Start"));
    CLabel* const label = new CLabel(&form);
    label->setGeometry(320, 135, 120, 60);
    label->setFixedSize(120, 60);
    label->setText(QLatin1String("Words that need two lines"));
    label->setWrapMode(CLabel::WordWrap);
    CProgressBar* const bar = new CProgressBar(&form);
    bar->move(10, 250);
    bar->setRange(0, 200);
    bar->setValue(150);
    bar->setBorderColor(QColor(99, 94, 128));
    CParmComboBox* const field = new CParmComboBox(
        QLatin1String("Mode"), QString::fromLatin1("Off,Auto,Manual").split(QLatin1Char(',')),
        QLatin1String("Auto"), &form);
    field->setGeometry(320, 380, 240, 30);
    field->setWidth(240);
    const QImage loaded = lookOf(m_form.data());
    const QImage handmade = lookOf(&form);
    const QList<QWidget*> widgets = QList<QWidget*>() << button << label << bar << field;
    for (int i = 0; i < widgets.size(); ++i) {
        const testing::InRow inRow(i);
        const QRect place = widgets.at(i)->geometry();
        CWIDGET_COMPARE_IMAGES(loaded.copy(place), handmade.copy(place));
    }
}

void tst_designerplugin::compiledFormLooksLikeTheLoadedOne()
{
    QCOMPARE(m_compiled->size(), m_form->size());
    const QImage loaded = lookOf(m_form.data());
    CWIDGET_COMPARE_IMAGES(lookOf(m_compiled.data()), loaded);
}

void tst_designerplugin::pagesAreInThePageWidget()
{
    CPageWidget* const loaded = m_form->findChild<CPageWidget*>();
    QCOMPARE(loaded->widget(0)->objectName(), QString::fromLatin1("page"));
    QCOMPARE(loaded->widget(1)->objectName(), QString::fromLatin1("page_2"));
    QVERIFY(loaded->widget(1)->findChild<CPushButton*>());
    QCOMPARE(m_ui.pageWidget->widget(1), static_cast<QWidget*>(m_ui.page_2));
    QCOMPARE(m_ui.page_2->property("PageIndex").toInt(), 1);
}

void tst_designerplugin::compiledFormTakesItsTextsAgain()
{
    m_ui.comboBox->setCurrentIndex(1);
    m_ui.parmComboBox->setCurrentIndex(2);
    m_ui.pushButton->setText(QLatin1String("something else"));
    m_ui.retranslateUi(m_compiled.data());
    QCOMPARE(m_ui.pushButton->getText(), QString::fromLatin1("Start"));
    QCOMPARE(m_ui.comboBox->currentIndex(), 1);
    QCOMPARE(m_ui.parmComboBox->currentIndex(), 2);
}

QTEST_MAIN(tst_designerplugin)
#include "tst_designerplugin.moc"
