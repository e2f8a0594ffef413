#include <Foundation/NSString.h>

#include <QCoreApplication>
#include <QString>
#include <QTextBoundaryFinder>

namespace {

bool isText(std::string_view bytes)
{
    return QByteArrayView(bytes.data(), qsizetype(bytes.size())).isValidUtf8();
}

// Canonically equivalent texts have the same decomposition.
QString decomposed(std::string_view text)
{
    const auto decoded = QString::fromUtf8(text.data(), qsizetype(text.size()));
    return decoded.normalized(QString::NormalizationForm_D);
}

enum class Place { start, end };

bool hasPart(std::string_view text, std::string_view part, Place place)
{
    if (!isText(text) || !isText(part))
        return place == Place::start ? text.starts_with(part) : text.ends_with(part);
    const QString whole = decomposed(text);
    const QString wanted = decomposed(part);
    const qsizetype rest = whole.size() - wanted.size();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, whole);
    finder.setPosition(place == Place::start ? wanted.size() : rest);
    return finder.isAtBoundary()
        && (place == Place::start ? whole.startsWith(wanted) : whole.endsWith(wanted));
}

}

bool NSString::hasPrefix(std::string_view text, std::string_view prefix)
{
    return hasPart(text, prefix, Place::start);
}

bool NSString::hasSuffix(std::string_view text, std::string_view suffix)
{
    return hasPart(text, suffix, Place::end);
}

std::string NSString::uppercaseString(const std::string& text)
{
    return QString::fromStdString(text).toUpper().toStdString();
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
