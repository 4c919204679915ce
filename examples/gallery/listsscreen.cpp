#include "listsscreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

// An open list covers the middle of the screen: no word may stand half below it.
const int comboWidth = 332;
const int rightColumn = 404;
const int rightWidth = 252;
const int comboHeight = 28;
const int bitsLeft = layout::margin - 4; // the box stands 5 pixels inside
const int bitPitch = 128;
const int bitHeight = 44;
const int recipeCount = 60;

const char* const units[] = {"bar", "mbar", "psi", "kPa", "mmHg", "atm", "Torr", "inHg"};
const int unitCount = sizeof units / sizeof units[0];

const char* const languages[] = {"English",  "Deutsch", "Fran\303\247ais", "Espa\xC3\xB1ol",
                                 "Italiano", "Polski",  "Portugu\xC3\xAAs"};
const int languageCount = sizeof languages / sizeof languages[0];
const int westernCount = 3;

QStringList textsOf(const char* const* texts, int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString::fromUtf8(texts[i]));
    return list;
}

QStringList recipes()
{
    QStringList list;
    for (int i = 1; i <= recipeCount; ++i)
        list.append(QString::fromLatin1("Recipe %1").arg(i, 2, 10, QLatin1Char('0')));
    return list;
}

} // namespace

ListsScreen::ListsScreen(Panel* panel)
    : Screen(QLatin1String("Lists"), panel),
      m_longList(nullptr),
      m_masked(nullptr),
      m_maskText(nullptr),
      m_languages(nullptr),
      m_more(nullptr),
      m_allLanguages(false)
{
    connect(this, SIGNAL(hint(QString)), panel, SLOT(setHint(QString)));
    addHeading(QLatin1String("A long list, a page at a time"), layout::firstHeading);
    addLongList(52);
    addHeading(QLatin1String("Entries restricted by a mask"), 104);
    addMask(144);
    addTexts(layout::firstHeading);
}

CComboBox* ListsScreen::longList() const
{
    return m_longList;
}

CComboBox* ListsScreen::addCombo(const QString& title, const QStringList& items, const QRect& place)
{
    CComboBox* combo = new CComboBox(this);
    combo->setTitle(title);
    combo->addItems(items);
    combo->setFixedWidth(place.width());
    combo->move(place.topLeft());
    connect(combo, SIGNAL(currentValueChanged(QString)), this, SLOT(chosen(QString)));
    return combo;
}

void ListsScreen::addLongList(int y)
{
    m_longList = addCombo(QLatin1String("Recipe"), recipes(),
                          QRect(layout::margin, y, comboWidth, comboHeight));
    m_longList->setObjectName(QLatin1String("recipes"));
    m_longList->setCurrentIndex(12);
}

void ListsScreen::addMask(int y)
{
    m_masked = addCombo(QLatin1String("Unit"), textsOf(units, unitCount),
                        QRect(layout::margin, y, comboWidth, comboHeight));
    m_masked->setObjectName(QLatin1String("units"));
    m_maskText = addCaption(QString(), QRect(rightColumn, y, rightWidth, comboHeight));
    for (int bit = 0; bit < unitCount; ++bit) {
        CCheckBox* box = new CCheckBox(QLatin1String(units[bit]), this);
        box->setBorderVisible(false);
        box->setForegroundColor(Qt::black);
        box->setChecked(bit % 2 == 0 || bit == 3);
        box->setFixedWidth(120);
        box->move(bitsLeft + bit % 2 * bitPitch, y + 48 + bit / 2 * bitHeight);
        connect(box, SIGNAL(stateChanged(int)), this, SLOT(maskChanged()));
        m_bits.append(box);
    }
    maskChanged();
}

void ListsScreen::addTexts(int y)
{
    addHeading(QLatin1String("Entries restricted by texts"), y, rightColumn);
    m_languages = addCombo(QLatin1String("Language"), textsOf(languages, languageCount),
                           QRect(rightColumn, y + 36, rightWidth, comboHeight));
    m_more = addButton(QString(), CPushButton::DefaultStyle,
                       QPoint(rightColumn + rightWidth - layout::buttonWidth, y + 76));
    connect(m_more, SIGNAL(clicked()), this, SLOT(nextLanguages()));
    nextLanguages();
}

void ListsScreen::chosen(const QString& text)
{
    Q_EMIT hint(QString::fromLatin1("Chosen: %1").arg(text));
}

void ListsScreen::maskChanged()
{
    unsigned int mask = 0;
    for (int bit = 0; bit < m_bits.size(); ++bit)
        mask |= m_bits.at(bit)->isChecked() ? 1u << bit : 0u;
    m_masked->setVisibleItems(mask, static_cast<unsigned int>(m_masked->currentIndex()));
    m_maskText->setText(QString::fromLatin1("Mask %1").arg(mask, unitCount, 2, QLatin1Char('0')) +
                        QLatin1String(mask == 0 ? ": nothing to choose" : ""));
}

void ListsScreen::nextLanguages()
{
    m_allLanguages = !m_allLanguages;
    m_languages->setVisibleItems(textsOf(languages, m_allLanguages ? languageCount : westernCount),
                                 0);
    m_more->setText(QLatin1String(m_allLanguages ? "Show three" : "Show all"));
}
