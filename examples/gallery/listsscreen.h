#ifndef GALLERY_LISTSSCREEN_H
#define GALLERY_LISTSSCREEN_H

#include "gallerywidgets.h"

#include <CCheckBox>
#include <CComboBox>
#include <QList>

class Panel;

/// Combo boxes over a long list, over a list whose entries are restricted by a mask, and over
/// texts.
class ListsScreen : public Screen
{
    Q_OBJECT

public:
    explicit ListsScreen(Panel* panel);

    CComboBox* longList() const;

Q_SIGNALS:
    void hint(const QString& text);

private Q_SLOTS:
    void chosen(const QString& text);
    void maskChanged();
    void nextLanguages();

private:
    CComboBox* addCombo(const QString& title, const QStringList& items, const QRect& place);
    void addLongList(int y);
    void addMask(int y);
    void addTexts(int y);

    CComboBox* m_longList;
    CComboBox* m_masked;
    CLabel* m_maskText;
    QList<CCheckBox*> m_bits;
    CComboBox* m_languages;
    CPushButton* m_more;
    bool m_allLanguages;
};

#endif
