#include "samples.h"

#include <CCheckBox>
#include <CClockProgress>
#include <CComboBox>
#include <CDialog>
#include <CGenKeyPad>
#include <CGraphicsView>
#include <CHexKeyPad>
#include <CKeyButton>
#include <CKeyPadEdit>
#include <CLabel>
#include <CLineEdit>
#include <CNumKeyPad>
#include <CPageBar>
#include <CPageListWidget>
#include <CPageListWidgetHeader>
#include <CPageListWidgetItem>
#include <CPageListWidgetItemArea>
#include <CPageWidget>
#include <CParmCheckBox>
#include <CParmComboBox>
#include <CParmLabel>
#include <CParmLineEdit>
#include <CProgressBar>
#include <CPushButton>
#include <CSoftKeyPad>
#include <CTopTitleArea>
#include <CWidget>
#include <CWidgetStyle>
#include <QGraphicsTextItem>

namespace
{

const int rowWidth = 320;
const int halfWay = 60;

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

QStringList entries()
{
    return latin1("Off,Auto,Manual,Holiday,Service,Night").split(QLatin1Char(','));
}

QWidget* widget()
{
    CWidget* const sample = new CWidget;
    sample->setSize(200, 100);
    sample->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    sample->setBorderColor(Qt::black);
    sample->setBorderWidth(2);
    return sample;
}

QWidget* dialog()
{
    CDialog* const sample = new CDialog;
    sample->setSize(200, 100);
    sample->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::ContainerBackgroundColor));
    sample->setBorderColor(Qt::black);
    sample->setBorderWidth(2);
    return sample;
}

QWidget* graphicsView()
{
    CGraphicsView* const sample = new CGraphicsView;
    sample->setSize(200, 100);
    sample->setBorderWidth(4);
    sample->setFrameShape(QFrame::NoFrame);
    QGraphicsScene* const scene = new QGraphicsScene(sample);
    scene->addText(latin1("A scene"));
    sample->setScene(scene);
    return sample;
}

QWidget* topTitleArea()
{
    CTopTitleArea* const sample = new CTopTitleArea;
    sample->setSize(rowWidth, 30);
    sample->setBackgroundColor(Qt::white);
    sample->setTitle(latin1("A title"));
    return sample;
}

QWidget* pushButton()
{
    CPushButton* const sample = new CPushButton;
    sample->setStyle(CPushButton::GreenStyle, true);
    sample->setText(latin1("Start"));
    return sample;
}

QWidget* label()
{
    CLabel* const sample = new CLabel;
    sample->setWidth(200);
    sample->setText(latin1("Temperature"));
    sample->setCornerText(latin1("21.4"));
    return sample;
}

QWidget* checkBox()
{
    CCheckBox* const sample = new CCheckBox(latin1("Window sensor"));
    sample->setFixedSize(200, sample->height());
    sample->setForegroundColor(Qt::black);
    sample->setChecked(true);
    return sample;
}

QWidget* lineEdit()
{
    CLineEdit* const sample = new CLineEdit;
    sample->setFixedWidth(200);
    sample->setText(latin1("Boiler room"));
    return sample;
}

QWidget* progressBar()
{
    CProgressBar* const sample = new CProgressBar;
    sample->setValue(halfWay);
    return sample;
}

QWidget* clockProgress()
{
    CClockProgress* const sample = new CClockProgress;
    sample->setSize(60, 60);
    sample->setRange(0, 11);
    sample->setValue(4);
    sample->setFormat(1);
    sample->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    return sample;
}

QWidget* pageBar()
{
    CPageBar* const sample = new CPageBar(nullptr, CWidgetStyle::HorizontalPageBar);
    sample->setSize(220, 30);
    for (int i = 0; i < 3; ++i)
        sample->addPage();
    return sample;
}

QWidget* pageWidget()
{
    CPageWidget* const sample = new CPageWidget;
    sample->setSize(rowWidth, 160);
    for (int i = 0; i < 3; ++i) {
        CLabel* const page = new CLabel;
        page->setText(QString::fromLatin1("Page %1").arg(i + 1));
        sample->addPage(page);
    }
    return sample;
}

QWidget* pageListWidgetItem()
{
    CPageListWidgetItem* const sample = new CPageListWidgetItem(latin1("Holiday"), nullptr);
    sample->setSize(rowWidth, 28);
    sample->setHoverIn();
    return sample;
}

QWidget* pageListWidgetHeader()
{
    CPageListWidgetHeader* const sample =
        new CPageListWidgetHeader(latin1("Mode"), latin1("Holiday"), nullptr);
    sample->setSize(rowWidth, 60);
    return sample;
}

QWidget* pageListWidgetItemArea()
{
    CPageListWidgetItemArea* const sample = new CPageListWidgetItemArea;
    sample->addItems(entries());
    sample->setSize(rowWidth, 148);
    sample->setVisibleItems(QList<int>() << 0 << 1 << 2 << 3 << 4);
    return sample;
}

QWidget* pageListWidget()
{
    CPageListWidget* const sample = new CPageListWidget;
    sample->setTitle(latin1("Mode"));
    sample->addItems(entries());
    sample->show(1);
    return sample;
}

QWidget* comboBox()
{
    CComboBox* const sample = new CComboBox;
    sample->setFixedWidth(200);
    sample->addItems(entries());
    return sample;
}

QWidget* parmLabel()
{
    CParmLabel* const sample = new CParmLabel(latin1("Temperature"), latin1("21.4"));
    sample->setWidth(rowWidth, Proportion1To1);
    return sample;
}

QWidget* parmLineEdit()
{
    CParmLineEdit* const sample = new CParmLineEdit(latin1("Set point"), latin1("22"));
    sample->setWidth(rowWidth, Proportion1To1);
    return sample;
}

QWidget* parmComboBox()
{
    CParmComboBox* const sample = new CParmComboBox(latin1("Mode"), entries(), latin1("Manual"));
    sample->setWidth(rowWidth);
    return sample;
}

QWidget* parmCheckBox()
{
    CParmCheckBox* const sample = new CParmCheckBox(latin1("Window sensor"), latin1("attached"));
    sample->setWidth(rowWidth);
    sample->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    sample->setCheckState(Qt::Checked);
    return sample;
}

QWidget* keyButton()
{
    CKeyButton* const sample = new CKeyButton;
    sample->setKeyText(latin1("q"));
    sample->setBackground(CWidgetStyle::getKeyStatus(CWidgetStyle::GenKeyReleased));
    sample->setTextColor(Qt::white);
    sample->setFixedSize(45, 45);
    return sample;
}

QWidget* genKeyPad()
{
    return new CGenKeyPad;
}

QWidget* hexKeyPad()
{
    return new CHexKeyPad;
}

QWidget* numKeyPad()
{
    return new CNumKeyPad(CNumKeyPad::SignedMode);
}

QWidget* keyPadEdit()
{
    CKeyPadEdit* const sample = new CKeyPadEdit;
    sample->setSKPType(CKeyPadFactory::SKP_GENERAL);
    sample->setFixedSize(469, 82);
    sample->setText(latin1("Set point"), latin1("22"));
    return sample;
}

QWidget* softKeyPad()
{
    CSoftKeyPad* const sample = new CSoftKeyPad(CKeyPadFactory::SKP_GENERAL);
    sample->setText(latin1("Room"), latin1("Boiler room"));
    return sample;
}

const struct {
    const char* name;
    QWidget* (*create)();
} makers[] = {
    // clang-format off
    {"CWidget",                 widget},
    {"CDialog",                 dialog},
    {"CGraphicsView",           graphicsView},
    {"CTopTitleArea",           topTitleArea},
    {"CPushButton",             pushButton},
    {"CLabel",                  label},
    {"CCheckBox",               checkBox},
    {"CLineEdit",               lineEdit},
    {"CProgressBar",            progressBar},
    {"CClockProgress",          clockProgress},
    {"CPageBar",                pageBar},
    {"CPageWidget",             pageWidget},
    {"CPageListWidgetItem",     pageListWidgetItem},
    {"CPageListWidgetHeader",   pageListWidgetHeader},
    {"CPageListWidgetItemArea", pageListWidgetItemArea},
    {"CPageListWidget",         pageListWidget},
    {"CComboBox",               comboBox},
    {"CParmLabel",              parmLabel},
    {"CParmLineEdit",           parmLineEdit},
    {"CParmComboBox",           parmComboBox},
    {"CParmCheckBox",           parmCheckBox},
    {"CKeyButton",              keyButton},
    {"CGenKeyPad",              genKeyPad},
    {"CHexKeyPad",              hexKeyPad},
    {"CNumKeyPad",              numKeyPad},
    {"CKeyPadEdit",             keyPadEdit},
    {"CSoftKeyPad",             softKeyPad},
    // clang-format on
};

} // namespace

namespace samples
{

QStringList names()
{
    QStringList all;
    for (const auto& maker : makers)
        all.append(latin1(maker.name));
    return all;
}

QWidget* create(const QString& name)
{
    for (const auto& maker : makers) {
        if (name == latin1(maker.name))
            return maker.create();
    }
    return nullptr;
}

} // namespace samples
