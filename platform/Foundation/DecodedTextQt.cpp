#include "DecodedText.h"

#include <QStringDecoder>

QString decodedText(std::string_view bytes)
{
    // A byte order mark is a character like any other.
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    QString text = decoder(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
    if (!text.contains(QChar::ReplacementCharacter))
        return text;

    // Qt writes one replacement character for each byte it can't decode. One that stands in the
    // bytes themselves has its three there.
    std::size_t offset = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool replaced
            = text[i] == QChar::ReplacementCharacter && bytes.substr(offset, 3) != "\xEF\xBF\xBD";
        if (replaced)
            text[i] = QChar(0xDC00 + static_cast<unsigned char>(bytes[offset]));
        offset += encodedSize(QStringView(text).sliced(i, 1));
    }
    return text;
}

std::size_t encodedSize(QStringView decoded)
{
    std::size_t size = 0;
    for (const QChar unit : decoded) {
        // The second half of a pair, which has four bytes, three of them counted with the first
        // half; or a byte that stands for itself.
        if (unit.unicode() < 0x80 || unit.isLowSurrogate())
            size += 1;
        else if (unit.unicode() < 0x800)
            size += 2;
        else
            size += 3;
    }
    return size;
}
