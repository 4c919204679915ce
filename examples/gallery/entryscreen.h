#ifndef GALLERY_ENTRYSCREEN_H
#define GALLERY_ENTRYSCREEN_H

#include "gallerywidgets.h"

#include <CLineEdit>

class Panel;

/// A field for each kind of keypad, without and with a range, and fields that are read-only,
/// disabled or for a keyboard only.
class EntryScreen : public Screen
{
    Q_OBJECT

public:
    explicit EntryScreen(Panel* panel);

    /// The field without a range that opens the keypad of \a type.
    CLineEdit* field(CKeyPadFactory::KeyPadType type) const;

Q_SIGNALS:
    void hint(const QString& text);

private Q_SLOTS:
    void edited(const QString& text);
    void saved();

private:
    CLineEdit* addField(const QString& title, const QString& text, int column, int y);
    void addColumnCaption(const QString& text, int column);
    void addName(const QString& name, int y);
    void addKeypadRows(int y);
    void addOtherFields(int y);

    QList<CLineEdit*> m_fields;
};

#endif
