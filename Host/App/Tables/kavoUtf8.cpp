#include "Tables/kavoUtf8.h"

#include <algorithm>
#include <cstring>

namespace {

const char digits[] = "0123456789ABCDEF";

// A range of first bytes, the range of the second byte after them, and the length. All further
// bytes are 80 to BF. The ranges exclude overlong forms, surrogates and characters beyond Unicode.
struct Form
{
    unsigned char first, last;
    unsigned char secondFrom, secondTo;
    std::size_t length;
};

const Form forms[] = {
    { 0x00, 0x7F, 0x00, 0xFF, 1 },
    { 0xC2, 0xDF, 0x80, 0xBF, 2 },
    { 0xE0, 0xE0, 0xA0, 0xBF, 3 },
    { 0xE1, 0xEC, 0x80, 0xBF, 3 },
    { 0xED, 0xED, 0x80, 0x9F, 3 },
    { 0xEE, 0xEF, 0x80, 0xBF, 3 },
    { 0xF0, 0xF0, 0x90, 0xBF, 4 },
    { 0xF1, 0xF3, 0x80, 0xBF, 4 },
    { 0xF4, 0xF4, 0x80, 0x8F, 4 },
};

unsigned char byteAt(const std::string &text, std::size_t place)
{
    return static_cast<unsigned char>(text[place]);
}

bool hasForm(const Form &form, const std::string &text, std::size_t place)
{
    const unsigned char first = byteAt(text, place);
    if (first < form.first || first > form.last || text.size() - place < form.length)
        return false;
    for (std::size_t i = 1; i < form.length; ++i) {
        const unsigned char byte = byteAt(text, place + i);
        const bool isSecond = i == 1;
        if (byte < (isSecond ? form.secondFrom : 0x80) || byte > (isSecond ? form.secondTo : 0xBF))
            return false;
    }
    return true;
}

bool isAscii(char character)
{
    return static_cast<unsigned char>(character) < 0x80;
}

int valueOf(char digit)
{
    const char *found = digit ? std::strchr(digits, digit) : nullptr;
    return found ? int(found - digits) : -1;
}

// Returns the byte that the escape at that place stands for, or -1 if there is no escape. Only the
// percent sign and bytes outside ASCII are escaped.
int escapeAt(const std::string &text, std::size_t place)
{
    if (text[place] != '%' || text.size() - place < 3)
        return -1;
    const int high = valueOf(text[place + 1]), low = valueOf(text[place + 2]);
    const int byte = high < 0 || low < 0 ? -1 : high * 16 + low;
    return byte == '%' || byte >= 0x80 ? byte : -1;
}

// Copies the text; calls `replace` for each invalid byte.
template <class Replace> std::string replaced(const std::string &text, Replace replace)
{
    std::string result;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t length = kavoUtf8::lengthAt(text, place);
        if (length == 0)
            replace(result, text[place]);
        else
            result.append(text, place, length);
        place += std::max<std::size_t>(length, 1);
    }
    return result;
}

} // namespace

std::size_t kavoUtf8::lengthAt(const std::string &text, std::size_t place)
{
    for (const Form &form : forms) {
        if (hasForm(form, text, place))
            return form.length;
    }
    return 0;
}

bool kavoUtf8::isValid(const std::string &text)
{
    std::size_t place = 0;
    while (place < text.size()) {
        const std::size_t length = lengthAt(text, place);
        if (length == 0)
            return false;
        place += length;
    }
    return true;
}

std::string kavoUtf8::valid(const std::string &text)
{
    if (std::all_of(text.begin(), text.end(), isAscii))
        return text;
    return replaced(text, [](std::string &result, char) { result += "\xEF\xBF\xBD"; });
}

QString kavoUtf8::toString(const std::string &text)
{
    // The conversion drops a byte order mark at the start.
    const bool hasMark = text.compare(0, 3, byteOrderMark) == 0;
    return QString::fromStdString(hasMark ? byteOrderMark + text : text);
}

std::string kavoUtf8::escaped(const std::string &text)
{
    std::string plain;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (escapeAt(text, place) < 0)
            plain += text[place];
        else
            appendEscape(plain, text[place]);
    }
    return replaced(plain, appendEscape);
}

std::string kavoUtf8::unescaped(const std::string &text)
{
    std::string result;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const int byte = escapeAt(text, place);
        result += byte < 0 ? text[place] : char(byte);
        place += byte < 0 ? 0 : 2;
    }
    return result;
}

void kavoUtf8::appendEscape(std::string &text, char byte)
{
    text += '%';
    text += digits[static_cast<unsigned char>(byte) >> 4];
    text += digits[byte & 15];
}
