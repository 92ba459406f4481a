#include <ovoui/sysinfo/core/ModuleRecord.h>

#include <algorithm>

namespace ovoui::sysinfo
{
namespace
{

constexpr std::size_t kAddressDigits = 16;

std::wstring digits(std::uint64_t number, const wchar_t* signs)
{
    std::wstring text;
    do {
        text.push_back(signs[number % 16]);
        number /= 16;
    } while (number != 0);
    std::reverse(text.begin(), text.end());
    return text;
}

/// As the C runtime prints pointers: sixteen capital digits.
std::wstring addressText(std::uint64_t address)
{
    const std::wstring text = digits(address, L"0123456789ABCDEF");
    return std::wstring(kAddressDigits - text.size(), L'0') + text;
}

} // namespace

const wchar_t* const kModuleColumns =
    L"Name\tbase address\tsize\tlinker stamp\tfile ver\tproduct ver\ttype\tflags\tos\tpath\tfileDesc";

std::wstring moduleLine(const ModuleRecord& record)
{
    std::wstring line = record.name;
    if (record.hasAddress)
        line += L'\t' + addressText(record.baseAddress) + L"\t0x" + digits(record.size, L"0123456789abcdef");
    else
        line += L"\t\t";
    for (const std::wstring* column :
         {&record.linkTime, &record.fileVersion, &record.productVersion, &record.type, &record.flags,
          &record.system, &record.path, &record.fileDescription})
        line += L'\t' + *column;
    return line;
}

} // namespace ovoui::sysinfo
