#include "Thrown.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <iterator>

namespace ovo::testkit
{

std::string thrownText(const std::exception_ptr& thrown)
{
    try {
        std::rethrow_exception(thrown);
    } catch (const std::exception& exception) {
        return exception.what();
    } catch (CException* exception) {
        wchar_t text[256] = L"";
        exception->GetErrorMessage(text, static_cast<UINT>(std::size(text)));
        exception->Delete();
        return "a CException: " + ::testing::PrintToString(std::wstring{text});
    } catch (...) {
        return "something that is no exception of the standard library";
    }
}

} // namespace ovo::testkit
