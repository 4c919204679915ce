#ifndef CWIDGET_STYLE_QTCOMPAT_H
#define CWIDGET_STYLE_QTCOMPAT_H

// What differs between Qt 4.8, 5 and 6, each difference as one small function or name. No other
// file of the library asks for the version of Qt.

#include <QByteArray>
#include <QColor>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QProcess>
#include <QRect>
#include <QRegion>
#include <QString>
#include <QStringList>
#include <QVector>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QGuiApplication>
#include <QScreen>
#else
#include <QApplication>
#include <QDesktopWidget>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QRegularExpression>
#include <QStringDecoder>
#else
#include <QBuffer>
#include <QRegExp>
#include <QXmlInputSource>
#endif

namespace qtcompat
{

/// The attributes that are set in \a font, one bit for each. The others are those of the parent.
inline unsigned int setAttributes(const QFont& font)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return font.resolveMask();
#else
    return font.resolve();
#endif
}

/// The advance of \a text in pixels, as whole a number as those of the \a metrics.
template <typename Metrics>
inline auto textWidth(const Metrics& metrics, const QString& text) -> decltype(metrics.height())
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

/// The advance of the single character \a ch in pixels.
inline int charWidth(const QFontMetrics& metrics, QChar ch)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(ch);
#else
    return metrics.width(ch);
#endif
}

/// Whether glyphs are drawn at the very pixels where text is that consists of them. On Qt 4 this is
/// not known.
inline bool placesGlyphs()
{
    return QT_VERSION >= QT_VERSION_CHECK(5, 0, 0);
}

/// The colour called \a name, or written with a hash sign; invalid, and no warning, for other
/// texts.
inline QColor namedColor(const QString& name)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 4, 0)
    return QColor::fromString(name);
#else
    return QColor::isValidColor(name) ? QColor(name) : QColor();
#endif
}

/// The families of the fonts that are installed and have the letters of \a system.
inline QStringList fontFamilies(QFontDatabase::WritingSystem system = QFontDatabase::Any)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QFontDatabase::families(system);
#else
    return QFontDatabase().families(system);
#endif
}

/// The point of \a event in the coordinates of the widget that receives it.
inline QPoint eventPos(const QMouseEvent* event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position().toPoint();
#else
    return event->pos();
#endif
}

/// The rectangles that \a region consists of.
inline QVector<QRect> partsOf(const QRegion& region)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return QVector<QRect>(region.begin(), region.end());
#else
    return region.rects();
#endif
}

/// Whether the regular expression \a pattern is found in \a text; an invalid one never is, and
/// gives no warning. Qt 6 has QRegExp only in a module of its own, too much for this one use.
inline bool matches(const QString& text, const char* pattern, Qt::CaseSensitivity sensitivity)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QRegularExpression expression(QLatin1String(pattern),
                                        sensitivity == Qt::CaseSensitive
                                            ? QRegularExpression::NoPatternOption
                                            : QRegularExpression::CaseInsensitiveOption);
    return expression.isValid() && expression.match(text).hasMatch();
#else
    return QRegExp(QLatin1String(pattern), sensitivity, QRegExp::RegExp).indexIn(text) >= 0;
#endif
}

/// Starts \a commandLine, a program and its arguments separated by single blanks, open for reading
/// and writing. Qt 6 dropped the overload for command lines.
inline void startCommand(QProcess& process, const QString& commandLine)
{
    QStringList words = commandLine.split(QLatin1Char(' '));
    const QString program = words.takeFirst();
    process.start(program, words, QIODevice::ReadWrite);
}

/// The area of the primary screen; null when there is no screen.
inline QRect primaryScreenGeometry()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
#else
    return QApplication::desktop()->screenGeometry(QApplication::desktop()->primaryScreen());
#endif
}

/// The signal of QComboBox that tells the text of another row after its number, for string-based
/// connections. Qt 6 dropped the one that says just that; there it comes for a renamed row as well.
inline const char* comboRowTextSignal()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return SIGNAL(currentTextChanged(QString));
#else
    return SIGNAL(currentIndexChanged(QString));
#endif
}

/// Whether \a box tells the text of every other row; an editable one on Qt 6 tells its number only.
inline bool comboTellsRowText(const QComboBox* box)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return !box->lineEdit();
#else
    Q_UNUSED(box);
    return true;
#endif
}

/// The signal of QComboBox that tells the text the user chose, for string-based connections.
inline const char* comboTextActivatedSignal()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return SIGNAL(textActivated(QString));
#else
    return SIGNAL(activated(QString));
#endif
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

/// The encoding that the XML declaration at the beginning of \a text names; empty when there is
/// none.
inline QByteArray declaredEncoding(const QString& text)
{
    const QString declaration = text.left(text.indexOf(QLatin1Char('>')) + 1);
    const qsizetype name = declaration.indexOf(QLatin1String("encoding"));
    if (!declaration.startsWith(QLatin1String("<?xml")) || name < 0)
        return QByteArray();
    const QString value = declaration.mid(name);
    const qsizetype single = value.indexOf(QLatin1Char('\''));
    const qsizetype twofold = value.indexOf(QLatin1Char('"'));
    const bool isSingle = twofold < 0 || (single >= 0 && single < twofold);
    return value.section(QLatin1Char(isSingle ? '\'' : '"'), 1, 1).toLatin1();
}

/// The text of the XML document \a content, decoded as QDomDocument does it: what the declaration
/// names holds for what follows the declaration.
inline QString xmlText(const QByteArray& content)
{
    const auto marked = QStringConverter::encodingForData(content, u'<');
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    QString text = decoder(content);
    QStringDecoder declared(declaredEncoding(text).constData());
    if (!declared.isValid() || qstrcmp(declared.name(), decoder.name()) == 0)
        return text;
    text.truncate(text.indexOf(QLatin1String("?>")) + 2);
    const QString whole = declared(content);
    return text + whole.mid(text.size());
}

#else

#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#endif

/// The text of the XML document \a content, decoded as QDomDocument does it: by the very class, a
/// piece at a time.
inline QString xmlText(const QByteArray& content)
{
    const int pieceSize = 1024;
    QBuffer buffer;
    buffer.setData(content);
    QXmlInputSource source(&buffer);
    QString text;
    text.reserve(content.size());
    for (int read = 0; read < content.size(); read += pieceSize) {
        text += source.data();
        source.fetchData();
    }
    return text;
}

#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
QT_WARNING_POP
#endif

#endif

} // namespace qtcompat

#endif
