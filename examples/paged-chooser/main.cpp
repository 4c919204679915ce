// A chooser: one of many programs, shown as buttons on pages that a finger turns. The page bar
// under them comes with the page widget.
//
// usage: paged-chooser [STYLE-FILE]

#include "stylefile.h"

#include <CLabel>
#include <CPageWidget>
#include <CPushButton>
#include <CWidgetStyle>
#include <QApplication>
#include <QGridLayout>
#include <QVBoxLayout>

#include <cstdio>

namespace
{

const char* const programs[] = {
    // clang-format off
    "Cotton 30",  "Cotton 40",   "Cotton 60",  "Cotton 90",
    "Easy care",  "Delicates",   "Silk",       "Wool",
    "Sportswear", "Jeans",       "Curtains",   "Down",
    "Shirts",     "Dark colors", "Baby care",  "Outdoor",
    "Express 15", "Express 30",  "Rinse",      "Spin",
    "Drain",      "Drum care",
    // clang-format on
};

const int programCount = sizeof programs / sizeof programs[0];
const int columns = 3;
const int pageSize = 9;
const int chooserWidth = 440;
const int chooserHeight = 230;
const int margin = 20;

} // namespace

class Chooser : public CWidget
{
    Q_OBJECT

public:
    Chooser();

private Q_SLOTS:
    void choose();

private:
    QWidget* createPage(int first);
    CPushButton* createButton(const QString& program);

    CPageWidget* m_pages;
    CLabel* m_choice;
    CPushButton* m_chosen;
};

Chooser::Chooser() : m_pages(new CPageWidget), m_choice(new CLabel), m_chosen(nullptr)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    m_pages->setSize(chooserWidth, chooserHeight);
    for (int first = 0; first < programCount; first += pageSize)
        m_pages->addPage(createPage(first));
    m_choice->setText(QLatin1String("Choose a program"));
    m_choice->setAlignment(Qt::AlignCenter);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(m_choice);
    layout->addWidget(m_pages);
    setSize(chooserWidth + 2 * margin, chooserHeight + 3 * margin + m_choice->height());
}

/// A page of the programs from \a first on. The last page may be a short one.
QWidget* Chooser::createPage(int first)
{
    QWidget* const page = new QWidget;
    QGridLayout* const grid = new QGridLayout(page);
    grid->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(margin);
    for (int i = 0; i < pageSize && first + i < programCount; ++i)
        grid->addWidget(createButton(QLatin1String(programs[first + i])), i / columns, i % columns);
    return page;
}

CPushButton* Chooser::createButton(const QString& program)
{
    CPushButton* const button = new CPushButton;
    button->setStyle(CPushButton::DefaultStyle, true);
    button->setBackgroundColor(QColor()); // the page shows at the round corners
    button->setAutoFillBackground(false);
    button->setText(program);
    connect(button, SIGNAL(clicked()), this, SLOT(choose()));
    return button;
}

/// The chosen program's button is green from now on, the one before is grey again.
void Chooser::choose()
{
    if (m_chosen)
        m_chosen->setStyle(CPushButton::DefaultStyle, true);
    m_chosen = qobject_cast<CPushButton*>(sender());
    m_chosen->setStyle(CPushButton::GreenStyle, true);
    m_choice->setText(QString::fromLatin1("Program: %1").arg(m_chosen->getText()));
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString style = arguments.value(1, shippedStyleFile());
    if (!CWidgetStyle::initialize(style)) // before any widget is made
        fprintf(stderr, "The style file %s cannot be read.\n", qPrintable(style));
    Chooser chooser;
    chooser.show();
    return QApplication::exec();
}

#include "main.moc"
