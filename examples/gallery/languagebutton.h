#ifndef GALLERY_LANGUAGEBUTTON_H
#define GALLERY_LANGUAGEBUTTON_H

#include <CPushButton>
#include <QTranslator>

/// Switches the texts of the library to the next language: keypads and page bars follow at once.
/// Hidden where the translations are not there.
class LanguageButton : public CPushButton
{
    Q_OBJECT

public:
    explicit LanguageButton(QWidget* parent);

public Q_SLOTS:
    void next();

private:
    void speak(int language);

    QTranslator m_translator;
    int m_language;
};

#endif
