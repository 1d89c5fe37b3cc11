#include "support/PrintableText.h"

namespace Zandrove {

namespace {

bool steersOutput(QChar character)
{
    const char16_t unit = character.unicode();
    const bool control = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
    const bool lineBreak = unit == 0x2028 || unit == 0x2029;
    const bool reorders = (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
    return control || lineBreak || reorders;
}

} // namespace

QString printable(const QString &text)
{
    QString result = text;
    for (QChar &character : result) {
        if (steersOutput(character))
            character = QChar::ReplacementCharacter;
    }
    return result;
}

} // namespace Zandrove
