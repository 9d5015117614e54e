#include "monkey/chance.h"

#include <QStringList>
#include <array>

namespace monkey {

namespace {

const char* const OddNumbers[] = {
    "1e400", "-1e400", "1e308", "4e38", "-4e38", "1e-400", "32768",       "-32769", "65536",    "99999999999",
    "-0",    "-1",     "-0.5",  "0.5",  "1.5",   "15.9",   "16",          "17",     "12.0001",  "1e",
    "1e+",   "e5",     ".",     "-",    "+",     "+7",     "--5",         ".5.5",   "1,5",      "1.234,5",
    "0x10",  "nan",    "inf",   "1e5x", "8 km",  "  8",    "8  ",         "\t8",    "00000008", "3.4028236e38",
    "१२.५",  "٣",      "１２",  "½",    "²",     "Ⅻ",      "12\u00a0000", "1'000",  "1/0",      "1e38",
};

const char* const OddTexts[] = {
    "Sr SE Ambapur",
    "स्टेशन मास्टर, पारसनाथ",
    "क्षत्रिय ज्ञ श्र",
    "<b>bold</b>&amp;<img src=x>",
    "%1 %s %n %d%%",
    "'; -- \" \\ / : * ?",
    "\u202e right to left \u202c",
    "👷🏽‍♀️🛤️",
    "\u2028\u2029\u0085",
    "machine packed",
    "Manually Packed ",
    " BG",
    "                  ",
};

// No character at all, or half of one: a clipboard brings them.
QString brokenText(Chance& chance)
{
    const std::array broken = {QChar(0),      QChar(1),      QChar(0x1b),   QChar(0x7f),  QChar(0xd800),
                               QChar(0xdc00), QChar(0xfffe), QChar(0xfeff), QChar(0xfffd)};
    QString text = "12";
    for (int i = chance.from(1, 6); i > 0; --i)
        text.insert(chance.below(static_cast<int>(text.size()) + 1), chance.of(broken));
    return text;
}

QString longText(Chance& chance)
{
    const QString piece = chance.oneIn(2) ? QString("9") : chance.oneIn(2) ? QString("ab ") : QString("Z\u0300\u0301");
    const std::array lengths = {300, 5'000, 40'000, 200'000};
    return piece.repeated(chance.of(lengths) / static_cast<int>(piece.size()));
}

}  // namespace

QString figure(Chance& chance)
{
    const QString whole = QString::number(chance.below(chance.oneIn(3) ? 400 : 20));
    return chance.oneIn(3) ? whole + "." + QString::number(chance.below(100)) : whole;
}

QString nonsense(Chance& chance)
{
    switch (chance.below(10)) {
    case 0:
        return brokenText(chance);
    case 1:
        return chance.oneIn(3) ? longText(chance) : QString();
    case 2:
    case 3:
    case 4:
        return QString::fromUtf8(OddTexts[chance.below(static_cast<int>(std::size(OddTexts)))]);
    default:
        return QString::fromUtf8(OddNumbers[chance.below(static_cast<int>(std::size(OddNumbers)))]);
    }
}

QString block(Chance& chance)
{
    const int rows = chance.oneIn(30) ? 3'000 : chance.from(1, 18);
    const int columns = chance.from(1, 15);
    const QString lineEnd = chance.oneIn(2) ? "\n" : chance.oneIn(2) ? "\r\n" : "\r";
    QString text;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            text += chance.oneIn(12) ? nonsense(chance) : figure(chance);
            if (column + 1 < columns || chance.oneIn(20))
                text += '\t';
        }
        if (row + 1 < rows || chance.oneIn(2))
            text += lineEnd;
    }
    return text;
}

}  // namespace monkey
