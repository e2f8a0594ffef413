#include <Foundation/NSString.h>

#include <QString>
#include <QTextBoundaryFinder>

namespace {

bool isText(std::string_view bytes)
{
    return QByteArrayView(bytes.data(), qsizetype(bytes.size())).isValidUtf8();
}

// Equivalent texts are the same text then.
QString decomposed(std::string_view text)
{
    const auto decoded = QString::fromUtf8(text.data(), qsizetype(text.size()));
    return decoded.normalized(QString::NormalizationForm_D);
}

bool isBoundary(const QString& text, qsizetype position)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(position);
    return finder.isAtBoundary();
}

}

bool NSString::hasPrefix(std::string_view text, std::string_view prefix)
{
    if (!isText(text) || !isText(prefix))
        return text.starts_with(prefix);
    const QString whole = decomposed(text);
    const QString start = decomposed(prefix);
    return whole.startsWith(start) && isBoundary(whole, start.size());
}

bool NSString::hasSuffix(std::string_view text, std::string_view suffix)
{
    if (!isText(text) || !isText(suffix))
        return text.ends_with(suffix);
    const QString whole = decomposed(text);
    const QString end = decomposed(suffix);
    return whole.endsWith(end) && isBoundary(whole, whole.size() - end.size());
}
