#include <ovosvg/core/XmlReader.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace ovosvg
{

namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Names may hold any character beyond ASCII: what they mean is decided by the drawing.
bool isNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool isNamePart(char c)
{
    return isNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

void appendUtf8(std::string& text, std::uint32_t code)
{
    const auto put = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    const auto tail = [&put, code](int shift) { put(0x80 | ((code >> shift) & 0x3F)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        tail(0);
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        tail(6);
        tail(0);
    } else {
        put(0xF0 | code >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

class Reader
{
public:
    explicit Reader(std::string_view text)
        : m_text(text)
    {
    }

    XmlElement document()
    {
        take("\xEF\xBB\xBF");
        skipBetween(Where::Outside);
        if (!take("<"))
            fail("no element");
        XmlElement root = element(1);
        skipBetween(Where::Outside);
        if (!atEnd())
            fail("text behind the outermost element");
        return root;
    }

private:
    enum class Where
    {
        Outside, ///< of the outermost element
        Inside
    };

    bool atEnd() const { return m_at >= m_text.size(); }
    char now() const { return atEnd() ? '\0' : m_text[m_at]; }

    void advance()
    {
        if (m_text[m_at] == '\n') {
            ++m_place.line;
            m_place.column = 1;
        } else if ((static_cast<unsigned char>(m_text[m_at]) & 0xC0) != 0x80) {
            ++m_place.column; // bytes that go on with a character do not count
        }
        ++m_at;
    }

    bool take(std::string_view token)
    {
        if (m_text.substr(m_at, token.size()) != token)
            return false;
        for (std::size_t i = 0; i < token.size(); ++i)
            advance();
        if (m_at == token.size() && token == "\xEF\xBB\xBF")
            m_place = {}; // the mark of UTF-8 is no character
        return true;
    }

    [[noreturn]] void fail(std::string what) const { fail(std::move(what), m_place); }
    [[noreturn]] static void fail(std::string what, XmlPlace place)
    {
        throw SvgFailure{{SvgIssue::NotWellFormed, place.line, place.column, std::move(what)}};
    }

    void skipBlanks()
    {
        while (!atEnd() && isBlank(now()))
            advance();
    }

    /// Up to and with the token.
    void skipPast(std::string_view token, const char* missing)
    {
        const XmlPlace begin = m_place;
        while (!take(token)) {
            if (atEnd())
                fail(missing, begin);
            advance();
        }
    }

    /// Comments, instructions, the document type, blanks and, inside an element, text.
    void skipBetween(Where where)
    {
        for (;;) {
            if (take("<!--"))
                skipPast("-->", "a comment without an end");
            else if (take("<?"))
                skipPast("?>", "an instruction without an end");
            else if (where == Where::Outside && take("<!DOCTYPE"))
                skipDocumentType();
            else if (where == Where::Inside && take("<![CDATA["))
                skipPast("]]>", "CDATA without an end");
            else if (!atEnd() && (where == Where::Inside ? now() != '<' : isBlank(now())))
                advance();
            else
                return;
        }
    }

    void skipDocumentType()
    {
        while (now() != '>') {
            if (atEnd())
                fail("a document type without an end");
            if (now() == '[')
                fail("declarations in the document type");
            if (now() == '"' || now() == '\'')
                quoted();
            else
                advance();
        }
        advance();
    }

    std::string_view name()
    {
        const std::size_t begin = m_at;
        if (!isNameStart(now()))
            fail("a name is missing");
        while (!atEnd() && isNamePart(now()))
            advance();
        return m_text.substr(begin, m_at - begin);
    }

    std::string_view quoted()
    {
        const char quote = now();
        const XmlPlace place = m_place;
        if (quote != '"' && quote != '\'')
            fail("a quote is missing");
        advance();
        const std::size_t begin = m_at;
        while (now() != quote) {
            if (atEnd())
                fail("a value without an end", place);
            advance();
        }
        advance();
        return m_text.substr(begin, m_at - 1 - begin);
    }

    static std::uint32_t codeOf(std::string_view digits, XmlPlace place)
    {
        const std::uint32_t base = digits.starts_with('x') ? 16 : 10;
        digits.remove_prefix(base == 16);
        std::uint32_t code = 0;
        for (const char c : digits) {
            const std::string_view known = "0123456789abcdef";
            const std::size_t digit = known.find(c >= 'A' && c <= 'F' ? static_cast<char>(c + 32) : c);
            if (digit >= base || code > 0x10FFFF)
                fail("a character's number", place);
            code = code * base + static_cast<std::uint32_t>(digit);
        }
        if (digits.empty() || code == 0 || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
            fail("a character's number", place);
        return code;
    }

    std::string valueOf(std::string_view raw, XmlPlace place) const
    {
        constexpr std::pair<std::string_view, char> kKnown[] = {
            {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
        std::string value;
        for (std::size_t i = 0; i < raw.size(); ++i) {
            if (raw[i] == '<')
                fail("< in a value", place);
            if (raw[i] != '&') {
                value += isBlank(raw[i]) ? ' ' : raw[i];
                continue;
            }
            const std::size_t end = std::min(raw.find(';', i), raw.size());
            const std::string_view reference = raw.substr(i + 1, end - i - 1);
            const auto known = std::find_if(std::begin(kKnown), std::end(kKnown),
                                            [&](const auto& entry) { return entry.first == reference; });
            if (end == raw.size())
                fail("& without ;", place);
            if (known != std::end(kKnown))
                value += known->second;
            else if (reference.starts_with('#'))
                appendUtf8(value, codeOf(reference.substr(1), place));
            else
                fail(std::string("&").append(reference).append(";"), place);
            i = end;
        }
        return value;
    }

    void attributes(XmlElement& element)
    {
        for (;;) {
            const bool apart = isBlank(now());
            skipBlanks();
            if (now() == '>' || now() == '/' || atEnd())
                return;
            if (!apart)
                fail("a blank is missing in front of an attribute");
            const XmlPlace place = m_place;
            if (element.attributes.size() >= kMostAttributes)
                throw SvgFailure{{SvgIssue::TooLarge, place.line, place.column, "attributes"}};
            std::string own(name());
            if (element.find(own))
                fail(own + " twice", place);
            skipBlanks();
            if (!take("="))
                fail("= is missing");
            skipBlanks();
            element.attributes.push_back({std::move(own), valueOf(quoted(), place), place});
        }
    }

    /// Behind "<".
    XmlElement element(int depth)
    {
        XmlElement own;
        own.place = m_place;
        --own.place.column;
        if (depth > kMostDepth)
            throw SvgFailure{{SvgIssue::TooLarge, own.place.line, own.place.column, "depth"}};
        if (++m_elements > kMostElements)
            throw SvgFailure{{SvgIssue::TooLarge, own.place.line, own.place.column, "elements"}};
        own.name = name();
        attributes(own);
        if (take("/>"))
            return own;
        if (!take(">"))
            fail("> is missing");
        for (;;) {
            skipBetween(Where::Inside);
            const XmlPlace place = m_place;
            if (take("</")) {
                if (name() != own.name)
                    fail("not the end of " + own.name, place);
                skipBlanks();
                if (!take(">"))
                    fail("> is missing");
                return own;
            }
            if (!take("<"))
                fail(own.name + " without an end", own.place);
            own.children.push_back(element(depth + 1));
        }
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    XmlPlace m_place;
    int m_elements = 0;
};

} // namespace

const std::string* XmlElement::find(std::string_view attribute) const
{
    for (const XmlAttribute& own : attributes)
        if (own.name == attribute)
            return &own.value;
    return nullptr;
}

std::int64_t XmlElement::cost() const
{
    std::size_t bytes = 0;
    for (const XmlAttribute& own : attributes)
        bytes += own.value.size();
    return kPointCost + static_cast<std::int64_t>(bytes);
}

XmlElement readXml(std::string_view text)
{
    if (text.size() > kMostBytes)
        throw SvgFailure{{SvgIssue::TooLarge, 0, 0, "bytes"}};
    return Reader(text).document();
}

} // namespace ovosvg
