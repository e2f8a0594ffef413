#include <Foundation/NSString.h>

#include "DecodedText.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <vector>

namespace {

std::vector<QStringView> charactersOf(const QString& text)
{
    std::vector<QStringView> characters;
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype start = 0; start < text.size(); start = boundaries.position())
        characters.push_back(QStringView(text).first(boundaries.toNextBoundary()).sliced(start));
    return characters;
}

bool areEquivalent(QStringView one, QStringView other)
{
    constexpr auto form = QString::NormalizationForm_C;
    return one == other || one.toString().normalized(form) == other.toString().normalized(form);
}

}

std::string_view NSString::firstCharacter(std::string_view text)
{
    const QString decoded = decodedText(text);
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, decoded);
    return text.substr(0, encodedSize(QStringView(decoded).first(boundaries.toNextBoundary())));
}

std::string_view NSString::lastCharacter(std::string_view text)
{
    const QString decoded = decodedText(text);
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, decoded);
    boundaries.toEnd();
    return text.substr(encodedSize(QStringView(decoded).first(boundaries.toPreviousBoundary())));
}

std::optional<std::size_t> NSString::rangeOfString(std::string_view text, std::string_view searched)
{
    const QString decoded = decodedText(text);
    const QString decodedSearched = decodedText(searched);
    const std::vector<QStringView> characters = charactersOf(decoded);
    const std::vector<QStringView> sought = charactersOf(decodedSearched);
    const auto found = std::search(
        characters.begin(), characters.end(), sought.begin(), sought.end(), areEquivalent);
    if (sought.empty() || found == characters.end())
        return std::nullopt;
    const QStringView before(decoded.constData(), found->data());
    return encodedSize(before);
}
