#include "xmltext.h"

#include <QXmlStreamReader>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QStringDecoder>
#else
#include <QTextCodec>
#endif

namespace
{

const int maximumDepth = 5000;
const qint64 maximumExpansion = 4 * 1024 * 1024;

/// The encoding of \a content: that of its byte order mark, or the declared one, or UTF-8.
QByteArray encodingOf(const QByteArray& content)
{
    QXmlStreamReader reader(content);
    reader.readNext();
    const QByteArray declared = reader.documentEncoding().toString().toLatin1();
    return declared.isEmpty() ? QByteArray("UTF-8") : declared;
}

} // namespace

namespace xmltext
{

QString refusal(const QByteArray& content)
{
    if (content.count('&') * qint64(content.size()) > maximumExpansion &&
        content.contains("<!ENTITY"))
        return QLatin1String("entity too large: the library does not read this file");
    QXmlStreamReader reader(content);
    int depth = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1
                 : token == QXmlStreamReader::EndElement ? -1
                                                         : 0;
        if (depth > maximumDepth)
            return QLatin1String("too deep: the library does not read this file");
    }
    return QString();
}

QString decoded(const QByteArray& content)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QStringDecoder::Encoding fallback =
        QStringConverter::encodingForName(encodingOf(content).constData())
            .value_or(QStringConverter::Utf8);
    QStringDecoder decoder(QStringConverter::encodingForData(content).value_or(fallback));
    return decoder(content);
#else
    const QTextCodec* const declared = QTextCodec::codecForName(encodingOf(content));
    const QTextCodec* const fallback = declared ? declared : QTextCodec::codecForName("UTF-8");
    const QTextCodec* const codec =
        QTextCodec::codecForUtfText(content, const_cast<QTextCodec*>(fallback));
    return codec->toUnicode(content);
#endif
}

} // namespace xmltext
