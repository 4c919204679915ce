#include "languagebutton.h"

#include <CWidgetStyle>
#include <QCoreApplication>
#include <QFile>

namespace
{

const QSize smallSize(44, 30);

// What the button says, and the ending of the file; none for the texts as they are.
const struct Language {
    const char* label;
    const char* file;
} languages[] = {
    // clang-format off
    {"EN", nullptr},
    {"DE", "de"},
    {"ZH", "zh_CN"},
    // clang-format on
};

const int languageCount = sizeof languages / sizeof languages[0];

/// For an installed gallery the installed ones, as seen from the program's own folder.
QString translationsFolder()
{
    const QString installed = QCoreApplication::applicationDirPath() +
                              QString::fromLatin1("/" GALLERY_INSTALLED_TRANSLATIONS);
    return QFile::exists(installed) ? installed : QString::fromUtf8(GALLERY_TRANSLATIONS);
}

QString fileOf(const Language& language)
{
    return translationsFolder() +
           QString::fromLatin1("/quorlin-cwidget_%1.qm").arg(QString::fromLatin1(language.file));
}

bool isThere(const Language& language)
{
    return !language.file || QFile::exists(fileOf(language));
}

/// The picture of a grey button, made smaller.
QPixmap smallPicture(CWidgetStyle::ButtonStatus status)
{
    return CWidgetStyle::getButtonStatus(status, true)
        .scaled(smallSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

LanguageButton::LanguageButton(QWidget* parent) : CPushButton(parent), m_language(0)
{
    bool complete = true;
    for (int i = 0; i < languageCount; ++i)
        complete = complete && isThere(languages[i]);
    setVisible(complete);
    setFixedSize(smallSize);
    setBackgroundColor(QColor()); // the corners of the picture let the bar through
    setAutoFillBackground(false);
    setBackground(smallPicture(CWidgetStyle::GrayReleased));
    setExtraAttr(ReleasedPixmap, smallPicture(CWidgetStyle::GrayReleased));
    setExtraAttr(PressedPixmap, smallPicture(CWidgetStyle::GrayPressed));
    setTextColor(Qt::white);
    setText(QString::fromLatin1(languages[0].label));
    connect(this, SIGNAL(clicked()), this, SLOT(next()));
}

void LanguageButton::next()
{
    speak((m_language + 1) % languageCount);
}

void LanguageButton::speak(int language)
{
    QCoreApplication::removeTranslator(&m_translator);
    m_language = language;
    setText(QString::fromLatin1(languages[language].label));
    if (languages[language].file && m_translator.load(fileOf(languages[language])))
        QCoreApplication::installTranslator(&m_translator);
}
