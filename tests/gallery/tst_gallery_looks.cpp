#include "gallerywidgets.h"
#include "keypad/softkeypad.h"
#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "pages/pagewidget.h"
#include "panel.h"
#include "paneltexts.h"
#include "parm/parmlineedit.h"
#include "support/colors.h"
#include "support/testing.h"
#include "widgets/toptitlearea.h"

namespace
{

const double minimumContrast = 4.5;
const double visibleWithoutColor = 7.0; // mean difference in lightness, of 100
const int grid = 4;
const int textMargin = 2; // of a label, left of its text
const int rowPitch = 56;

QString styleFile()
{
    return QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml");
}

} // namespace

class tst_gallery_looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyTextIsLegible_data();
    void everyTextIsLegible();
    void keypadCutsNoWord();
    void listCutsNoWord();
    void statesOfButtonsAreToldApart();
    void oneMainButtonAtMost_data();
    void oneMainButtonAtMost();
    void screensStandOnAGrid_data();
    void screensStandOnAGrid();
    void rowsOfParametersAreFarApart();
    void titleTakesOverANewFont();
    void cleanupTestCase();

private:
    void addScreens();
    QString cutWord(const QSize& cover);
    QImage bare(const char* button);

    Panel* m_panel;
};

void tst_gallery_looks::initTestCase()
{
    QVERIFY(CWidgetStyle::initialize(styleFile()));
    m_panel = new Panel(styleFile());
    m_panel->freezeTime();
    m_panel->show();
    QCoreApplication::processEvents();
}

void tst_gallery_looks::cleanupTestCase()
{
    delete m_panel;
}

void tst_gallery_looks::addScreens()
{
    QTest::addColumn<QString>("name");
    const QStringList names = Panel::screenNames();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << names.at(i);
}

void tst_gallery_looks::everyTextIsLegible_data()
{
    addScreens();
}

void tst_gallery_looks::everyTextIsLegible()
{
    QFETCH(QString, name);
    m_panel->showScreen(name);
    m_panel->setHint(QLatin1String("A hint"));
    CPageWidget* pages = m_panel->screen(name)->findChild<CPageWidget*>();
    for (int page = 0; page < (pages ? pages->count() : 1); ++page) {
        if (pages)
            pages->setCurrentPage(page);
        const QList<ShownText> texts = textsOf(m_panel);
        QVERIFY(texts.size() > Panel::screenNames().size());
        for (int i = 0; i < texts.size(); ++i) {
            const QString message = QString::fromLatin1("'%1' has a contrast of %2")
                                        .arg(texts.at(i).text)
                                        .arg(texts.at(i).contrast);
            QVERIFY2(texts.at(i).contrast >= minimumContrast, qPrintable(message));
        }
    }
}

/// A word that would show half beside something of the size \a cover in the middle of the panel;
/// empty when there is none.
QString tst_gallery_looks::cutWord(const QSize& cover)
{
    QRect covered(QPoint(0, 0), cover);
    covered.moveTopLeft(m_panel->rect().center() - QPoint(cover.width() / 2, cover.height() / 2));
    const QList<ShownText> texts = textsOf(m_panel);
    for (int i = 0; i < texts.size(); ++i) {
        const QRect rect = texts.at(i).rect;
        if (rect.intersects(covered) && !covered.contains(rect))
            return texts.at(i).text;
    }
    return QString();
}

void tst_gallery_looks::keypadCutsNoWord()
{
    const CSoftKeyPad keypad(CKeyPadFactory::SKP_GENERAL);
    m_panel->showScreen(QLatin1String("entry"));
    QCOMPARE(cutWord(keypad.size()), QString());
    m_panel->showScreen(QLatin1String("parameters"));
    CPageWidget* pages = m_panel->screen(QLatin1String("parameters"))->findChild<CPageWidget*>();
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentPage(page);
        QCOMPARE(cutWord(keypad.size()), QString());
    }
    pages->setCurrentPage(0);
}

void tst_gallery_looks::listCutsNoWord()
{
    m_panel->showScreen(QLatin1String("lists"));
    CComboBox* box =
        m_panel->screen(QLatin1String("lists"))->findChild<CComboBox*>(QLatin1String("recipes"));
    box->showPopup();
    const QSize size = box->findChild<CPageListWidget*>()->size();
    box->hidePopup();
    QCOMPARE(cutWord(size), QString());
}

/// A button of the controls' screen without its text.
QImage tst_gallery_looks::bare(const char* button)
{
    CPushButton* found = m_panel->findChild<CPushButton*>(QLatin1String(button));
    if (!found)
        qFatal("there is no button %s", button);
    const QString text = found->getText();
    found->setText(QString());
    QImage image(found->size(), QImage::Format_RGB32);
    image.fill(screenColor().rgb());
    found->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    found->setText(text);
    return image;
}

/// Also by colour-blind users, and on a display without colours.
void tst_gallery_looks::statesOfButtonsAreToldApart()
{
    m_panel->showScreen(QLatin1String("controls"));
    const char* const names[] = {"style-Details", "state-pressed", "state-selected",
                                 "state-disabled", "style-Fixed"};
    const int count = sizeof names / sizeof names[0];
    for (int a = 0; a < count; ++a) {
        for (int b = a + 1; b < count; ++b) {
            for (int vision = 0; vision < colors::VisionCount; ++vision) {
                const double difference = colors::lightnessDifference(
                    bare(names[a]), bare(names[b]), static_cast<colors::Vision>(vision));
                const QString message = QString::fromLatin1("%1 and %2, vision %3: %4")
                                            .arg(QLatin1String(names[a]), QLatin1String(names[b]))
                                            .arg(vision)
                                            .arg(difference);
                QVERIFY2(difference >= visibleWithoutColor, qPrintable(message));
            }
        }
    }
}

void tst_gallery_looks::oneMainButtonAtMost_data()
{
    addScreens();
}

void tst_gallery_looks::oneMainButtonAtMost()
{
    QFETCH(QString, name);
    const QImage green = CWidgetStyle::getButtonStatus(CWidgetStyle::GreenReleased, true).toImage();
    const QList<CPushButton*> buttons = m_panel->screen(name)->findChildren<CPushButton*>();
    int count = 0;
    for (int i = 0; i < buttons.size(); ++i)
        count += buttons.at(i)->getBackground().toImage() == green ? 1 : 0;
    QVERIFY(count <= 1);
    if (name == QLatin1String("entry") || name == QLatin1String("parameters"))
        QCOMPARE(count, 1);
}

void tst_gallery_looks::screensStandOnAGrid_data()
{
    addScreens();
}

/// With the same margin left and right.
void tst_gallery_looks::screensStandOnAGrid()
{
    QFETCH(QString, name);
    Screen* screen = m_panel->screen(name);
    const QObjectList children = screen->children();
    QRect around;
    for (int i = 0; i < children.size(); ++i) {
        QWidget* child = qobject_cast<QWidget*>(children.at(i));
        if (!child || child->isHidden() || child->isWindow())
            continue;
        CLabel* label = qobject_cast<CLabel*>(child);
        const bool isText = label && child->x() % grid == grid - textMargin;
        const QPoint corner = child->pos() + QPoint(isText ? textMargin : 0, 0);
        const QString message = QString::fromLatin1("%1 at %2, %3")
                                    .arg(QLatin1String(child->metaObject()->className()))
                                    .arg(corner.x())
                                    .arg(corner.y());
        QVERIFY2(corner.x() % grid == 0 && corner.y() % grid == 0, qPrintable(message));
        if (!child->inherits("CCheckBox")) // its box stands inside of it
            around |= QRect(corner, child->geometry().bottomRight());
    }
    QCOMPARE(around.left(), layout::margin);
    QCOMPARE(around.right(), screen->width() - layout::margin - 1);
}

void tst_gallery_looks::rowsOfParametersAreFarApart()
{
    m_panel->showScreen(QLatin1String("parameters"));
    CPageWidget* pages = m_panel->screen(QLatin1String("parameters"))->findChild<CPageWidget*>();
    QCoreApplication::processEvents();
    QWidget* page = pages->widget(0);
    const QList<CParmLineEdit*> fields = page->findChildren<CParmLineEdit*>();
    QCOMPARE(fields.size(), 3);
    QCOMPARE(fields.at(1)->y() - fields.at(0)->y(), rowPitch);
    QCOMPARE(fields.at(2)->y() - fields.at(1)->y(), rowPitch);
    QCOMPARE(fields.at(0)->mapTo(m_panel, QPoint(0, 0)).y() % grid, 0);
}

void tst_gallery_looks::titleTakesOverANewFont()
{
    const testing::TemporaryFolder folder;
    Panel panel(folder.write(QLatin1String("style.xml"), testing::contentOf(styleFile())));
    CTopTitleArea* title = panel.findChild<CTopTitleArea*>();
    QCOMPARE(title->font().family(), QString::fromLatin1("Arial"));
    panel.restyle(QLatin1String("Liberation Serif"));
    QCOMPARE(title->font().family(), QString::fromLatin1("Liberation Serif"));
    QVERIFY(CWidgetStyle::initialize(styleFile()));
}

QTEST_MAIN(tst_gallery_looks)
#include "tst_gallery_looks.moc"
