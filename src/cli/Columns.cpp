#include "cli/Columns.h"

#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <utility>

namespace Zandrove::Cli {

namespace {

int columnsOf(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing ||
        category == QChar::Other_Format)
        return 0;
    constexpr std::pair<char32_t, char32_t> Wide[] = {
        {0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},  {0xFE30, 0xFE6F},
        {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x20000, 0x3FFFD}};
    const bool isWide = std::any_of(std::begin(Wide), std::end(Wide), [character](const auto &range) {
        return character >= range.first && character <= range.second;
    });
    return isWide ? 2 : 1;
}

/// `text` cut where a line may end; the pieces keep their blanks.
QStringList pieces(const QString &text)
{
    QStringList result;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    qsizetype begin = 0;
    while (finder.toNextBoundary() >= 0) {
        const qsizetype end = finder.position();
        // Between narrow characters the finder also offers a hyphen, as of an option.
        const bool isOffered = end == text.size() || text.at(end - 1).isSpace() ||
                               columnsOf(text.at(end - 1).unicode()) == 2 ||
                               columnsOf(text.at(end).unicode()) == 2;
        if (!isOffered)
            continue;
        result.append(text.mid(begin, end - begin));
        begin = end;
    }
    return result;
}

} // namespace

int columnsOf(const QString &text)
{
    int columns = 0;
    for (const char32_t character : text.toUcs4())
        columns += columnsOf(character);
    return columns;
}

QString fitted(const QString &text, int columns)
{
    if (columnsOf(text) <= columns)
        return text;
    QString result;
    int used = 1; // of the ellipsis
    for (const char32_t character : text.toUcs4()) {
        used += columnsOf(character);
        if (used > columns)
            break;
        result += QString::fromUcs4(&character, 1);
    }
    return columns > 0 ? result + u'…' : QString();
}

QString wrapped(const QString &text, int indent, int columns)
{
    QString result;
    QString line;
    for (const QString &piece : pieces(text)) {
        if (!line.isEmpty() && indent + columnsOf((line + piece).trimmed()) > columns) {
            result += line.trimmed() + u'\n' + QString(indent, u' ');
            line.clear();
        }
        line += piece;
    }
    return result + line;
}

} // namespace Zandrove::Cli
