// XML as drawings are written in, and the places of what is wrong with it.
#include <ovosvg/core/XmlReader.h>

#include <gtest/gtest.h>

#include <string>

using namespace ovosvg;

namespace
{

/// "name(attribute=value ...)[children]"
std::string shown(const XmlElement& element)
{
    std::string text = element.name;
    for (const XmlAttribute& attribute : element.attributes)
        text += " " + attribute.name + "=" + attribute.value;
    if (element.children.empty())
        return text;
    text += "[";
    for (const XmlElement& child : element.children)
        text += (&child == &element.children.front() ? "" : ", ") + shown(child);
    return text + "]";
}

std::string failure(const std::string& text)
{
    try {
        return "read: " + shown(readXml(text));
    } catch (const SvgFailure& failure) {
        EXPECT_EQ(failure.note.issue, SvgIssue::NotWellFormed);
        return std::to_string(failure.note.line) + ":" + std::to_string(failure.note.column) + " " +
               failure.note.what;
    }
}

} // namespace

TEST(XmlReader, ReadsElementsInEachOther)
{
    EXPECT_EQ(shown(readXml("<a/>")), "a");
    EXPECT_EQ(shown(readXml("<a ><b/>text<c></c ></a>")), "a[b, c]");
    EXPECT_EQ(shown(readXml("<a x='1' y = \"2\"\n z:w=''/>")), "a x=1 y=2 z:w=");
    EXPECT_EQ(shown(readXml("\xEF\xBB\xBF<?xml version='1.0'?>\n<!-- c -- --><!DOCTYPE svg PUBLIC \"a>b\" "
                            "'c'>\n<a/>\n<!---->")),
              "a");
    EXPECT_EQ(shown(readXml("<a><!-- <x> --><![CDATA[<y>]]><?z <?><b/></a>")), "a[b]");
}

TEST(XmlReader, ReplacesReferences)
{
    EXPECT_EQ(shown(readXml("<a x='&lt;&gt;&amp;&quot;&apos;&#65;&#x42;'/>")), "a x=<>&\"'AB");
    EXPECT_EQ(shown(readXml("<a x='&#228;&#x20AC;&#x1F600;'/>")), "a x=\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(shown(readXml("<a x='1\n2\t3'/>")), "a x=1 2 3");
}

TEST(XmlReader, KnowsWhereElementsAndAttributesStand)
{
    const XmlElement root = readXml("<a>\n  <b x='1'\n y='2'/>\xC3\xA4<c/></a>");
    EXPECT_EQ(root.children.at(0).place.line, 2);
    EXPECT_EQ(root.children[0].place.column, 3);
    EXPECT_EQ(root.children[0].attributes.at(1).place.line, 3);
    EXPECT_EQ(root.children[0].attributes[1].place.column, 2);
    EXPECT_EQ(root.children.at(1).place.column, 10) << "a character of two bytes is one";
    EXPECT_EQ(readXml("\xEF\xBB\xBF<a/>").place.column, 1);
    EXPECT_EQ(*root.children[0].find("y"), "2");
    EXPECT_EQ(root.find("y"), nullptr);
}

TEST(XmlReader, SaysWhatIsWrongAndWhere)
{
    const std::pair<const char*, const char*> table[] = {
        {"", "1:1 no element"},
        {"text", "1:1 no element"},
        {"<a>", "1:1 a without an end"},
        {"<a>\n <b>\n</a>", "3:1 not the end of b"},
        {"<a></a", "1:7 > is missing"},
        {"<a></b>", "1:4 not the end of a"},
        {"<a/><b/>", "1:5 text behind the outermost element"},
        {"<a/>text", "1:5 text behind the outermost element"},
        {"<a", "1:3 > is missing"},
        {"<a x>", "1:5 = is missing"},
        {"<a x=1>", "1:6 a quote is missing"},
        {"<a x='1>", "1:6 a value without an end"},
        {"<a x='1'y='2'/>", "1:9 a blank is missing in front of an attribute"},
        {"<a x='1' x='2'/>", "1:10 x twice"},
        {"<a x='<'/>", "1:4 < in a value"},
        {"<a x='&nbsp;'/>", "1:4 &nbsp;"},
        {"<a x='&lt'/>", "1:4 & without ;"},
        {"<a x='&#0;'/>", "1:4 a character's number"},
        {"<a x='&#xD800;'/>", "1:4 a character's number"},
        {"<a x='&#99999999999;'/>", "1:4 a character's number"},
        {"<a x='&#xG;'/>", "1:4 a character's number"},
        {"<1/>", "1:2 a name is missing"},
        {"< a/>", "1:2 a name is missing"},
        {"<a /x>", "1:4 > is missing"},
        {"<!-- a", "1:5 a comment without an end"},
        {"<a><![CDATA[b</a>", "1:13 CDATA without an end"},
        {"<?x", "1:3 an instruction without an end"},
        {"<!DOCTYPE svg", "1:14 a document type without an end"},
        {"<!DOCTYPE svg [<!ENTITY a 'b'>]><a/>", "1:15 declarations in the document type"},
    };
    for (const auto& [text, expected] : table)
        EXPECT_EQ(failure(text), expected) << text;
}

TEST(XmlReader, HasLimits)
{
    const auto tooLarge = [](const std::string& text) -> std::string {
        try {
            readXml(text);
            return {};
        } catch (const SvgFailure& failure) {
            return failure.note.issue == SvgIssue::TooLarge ? failure.note.what : "another failure";
        }
    };
    const auto nested = [](int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i)
            text += "<a>";
        for (int i = 0; i < depth; ++i)
            text += "</a>";
        return text;
    };
    EXPECT_EQ(tooLarge(nested(kMostDepth)), "");
    EXPECT_EQ(tooLarge(nested(kMostDepth + 1)), "depth");
    EXPECT_EQ(tooLarge(nested(500'000)), "depth");
    std::string many = "<a>";
    for (int i = 0; i < kMostElements; ++i)
        many += "<b/>";
    EXPECT_EQ(tooLarge(many + "</a>"), "elements");
    std::string wide = "<a";
    for (std::size_t i = 0; i <= kMostAttributes; ++i)
        wide += " x" + std::to_string(i) + "=''";
    EXPECT_EQ(tooLarge(wide + "/>"), "attributes");
    EXPECT_EQ(tooLarge("<a>" + std::string(kMostBytes, ' ') + "</a>"), "bytes");
}
