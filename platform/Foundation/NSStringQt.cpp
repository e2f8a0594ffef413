#include <Foundation/NSString.h>

#include <QCoreApplication>
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
    if (!isText(text) || !isText(prefix)) return text.starts_with(prefix);
    const QString whole = decomposed(text);
    const QString start = decomposed(prefix);
    return whole.startsWith(start) && isBoundary(whole, start.size());
}

bool NSString::hasSuffix(std::string_view text, std::string_view suffix)
{
    if (!isText(text) || !isText(suffix)) return text.ends_with(suffix);
    const QString whole = decomposed(text);
    const QString end = decomposed(suffix);
    return whole.endsWith(end) && isBoundary(whole, whole.size() - end.size());
}

std::string NSString::stringWithFormat(
    const std::string& format, const std::vector<std::string>& arguments)
{
    std::string text;
    for (std::size_t i = 0; i < format.size(); ++i)
        if (format[i] == '%' && std::size_t(format[i + 1] - '1') < arguments.size())
            text += arguments[std::size_t(format[++i] - '1')];
        else
            text += format[i];
    return text;
}

std::string NSLocalizedString(const char* table, const char* key)
{
    return QCoreApplication::translate(table, key).toStdString();
}
