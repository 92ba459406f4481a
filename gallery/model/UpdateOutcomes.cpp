#include "UpdateOutcomes.h"

namespace
{

using Manner = ListServer::Manner;

const std::string kHeader =
    "UpdateType,Product,Options,OS,Processor,Version,UpdateVersion,UpdateInfo,UpdateDescription\r\n";
const std::string kNewer =
    "#update,Gallery,,,,11.*,11.3.0.2000,https://example.org/11.3,\"Faster, and prints on both sides\"\r\n";

std::string longDescription()
{
    std::string text = "#update,Gallery,,,,,12,https://example.org/12,\"What is new & better, at 100%:\n";
    for (int i = 1; i <= 30; ++i)
        text += "- Bed " + std::to_string(i) + " can be dug, sown and watered.\n";
    return text + "\"\r\n";
}

std::string largeList()
{
    std::string text = kHeader;
    while (text.size() < 4'000'000)
        text += "#update,Another program,,,,,1,https://example.org/1,A row for another program\r\n";
    return text + kNewer;
}

} // namespace

const std::vector<UpdateOutcome>& updateOutcomes()
{
    static const std::vector<UpdateOutcome> outcomes{
        {L"newer", L"A newer version", "200 OK", kHeader + kNewer, Manner::AtOnce},
        {L"none", L"Nothing new", "200 OK",
         kHeader + "#update,Gallery,,,,11.*,11.2.0.1234,https://example.org/11.2,\r\n", Manner::AtOnce},
        {L"several", L"Several rows that apply", "200 OK",
         kHeader + kNewer + "#update,Gallery,,Windows,Intel64,11.2,13.0,https://example.org/13,Thirteen\r\n",
         Manner::AtOnce},
        {L"long", L"A long description", "200 OK", kHeader + longDescription(), Manner::AtOnce},
        {L"incomplete", L"A row without a required column", "200 OK", kHeader + kNewer + "#note,Gallery\r\n",
         Manner::AtOnce},
        {L"page", L"A web page instead of a list", "200 OK",
         "<html><body>Not here any more</body></html>\r\n", Manner::AtOnce},
        {L"hostile", L"A page that is no web page", "200 OK",
         kHeader + "#update,Gallery,,,,,12,file:///C:/Windows/notepad.exe,Please open\r\n", Manner::AtOnce},
        {L"missing", L"404: no list", "404 Not Found", "Not found", Manner::AtOnce},
        {L"cut", L"A list that is cut short", "200 OK", kHeader + kNewer, Manner::CutShort},
        {L"slow", L"A large list over a slow line", "200 OK", largeList(), Manner::Slowly},
        {L"silent", L"A server that never answers", "200 OK", "", Manner::Never},
    };
    return outcomes;
}
