#include "listsscreen.h"

#include "panel.h"

#include <CWidgetStyle>

namespace
{

const int left = 20;
const int comboWidth = 260;
const int recipeCount = 60;

const char* const units[] = {"bar", "mbar", "psi", "kPa", "mmHg", "atm", "Torr", "inHg"};
const int unitCount = sizeof units / sizeof units[0];

const char* const languages[] = {"English",
                                 "Deutsch",
                                 "Fran\xC3\xA7"
                                 "ais",
                                 "Espa\xC3\xB1ol",
                                 "Italiano",
                                 "Polski",
                                 "Portugu\xC3\xAAs"};
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
      m_longList(0),
      m_masked(0),
      m_maskText(0),
      m_languages(0),
      m_allLanguages(true)
{
    connect(this, SIGNAL(hint(QString)), panel, SLOT(setHint(QString)));
    addHeading(QLatin1String("A long list, a page at a time"), 12);
    addLongList(46);
    addHeading(QLatin1String("Entries restricted by a mask"), 100);
    addMask(134);
    addHeading(QLatin1String("Entries restricted by texts"), 320);
    addTexts(354);
}

CComboBox* ListsScreen::longList() const
{
    return m_longList;
}

CComboBox* ListsScreen::addCombo(const QString& title, const QStringList& items, int y)
{
    CComboBox* combo = new CComboBox(this);
    combo->setTitle(title);
    combo->addItems(items);
    combo->setFixedWidth(comboWidth);
    combo->move(left, y);
    connect(combo, SIGNAL(currentValueChanged(QString)), this, SLOT(chosen(QString)));
    return combo;
}

void ListsScreen::addLongList(int y)
{
    m_longList = addCombo(QLatin1String("Recipe"), recipes(), y);
    m_longList->setObjectName(QLatin1String("recipes"));
    m_longList->setCurrentIndex(12);
}

void ListsScreen::addMask(int y)
{
    m_masked = addCombo(QLatin1String("Unit"), textsOf(units, unitCount), y);
    m_masked->setObjectName(QLatin1String("units"));
    m_maskText = plainLabel(QString(), this);
    m_maskText->setGeometry(left + comboWidth + 20, y, 340, 28);
    for (int bit = 0; bit < unitCount; ++bit) {
        CCheckBox* box = new CCheckBox(QLatin1String(units[bit]), this);
        box->setBorderVisible(false);
        box->setForegroundColor(CWidgetStyle::getColor(CWidgetStyle::PanelGroundColor));
        box->setChecked(bit % 2 == 0 || bit == 3);
        box->setFixedWidth(120);
        box->move(left + bit % 4 * 150, y + 48 + bit / 4 * 44);
        connect(box, SIGNAL(stateChanged(int)), this, SLOT(maskChanged()));
        m_bits.append(box);
    }
    maskChanged();
}

void ListsScreen::addTexts(int y)
{
    m_languages = addCombo(QLatin1String("Language"), textsOf(languages, languageCount), y);
    CPushButton* button = addButton(QLatin1String("All or three"), CPushButton::DefaultStyle,
                                    QRect(left + comboWidth + 20, y - 6, 140, 40));
    connect(button, SIGNAL(clicked()), this, SLOT(nextLanguages()));
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
}
