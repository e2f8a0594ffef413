#include "Foundation/NSString.h"
#include "Foundation/TextQt.h"

#include <QTextBoundaryFinder>

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
