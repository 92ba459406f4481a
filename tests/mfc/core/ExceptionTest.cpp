// MFC's own exceptions.
#include "Texts.h"
#include "resource.h"
#include <testkit/TestApp.h>

#include <afxwin.h>
#include <afxole.h>

using ovo::testkit::TestApp;

namespace
{

int g_alive = 0;

class CProbeException : public CException
{
    DECLARE_DYNAMIC(CProbeException)

public:
    explicit CProbeException(BOOL autoDelete = TRUE)
        : CException(autoDelete)
    {
        ++g_alive;
    }
    ~CProbeException() override { --g_alive; }
};

IMPLEMENT_DYNAMIC(CProbeException, CException)

template <class Exception>
CString textOf(const Exception& exception)
{
    wchar_t text[512];
    UINT help = 99;
    const BOOL any = exception.GetErrorMessage(text, 512, &help);
    EXPECT_EQ(help, 0u);
    EXPECT_EQ(any, text[0] != 0);
    return text;
}

/// What a function throws: the class's name and its text.
template <class Exception, class Function>
CString thrownBy(Function function)
{
    try {
        function();
    } catch (Exception* exception) {
        const CString text = textOf(*exception);
        EXPECT_EQ(exception->GetRuntimeClass(), RUNTIME_CLASS(Exception));
        exception->Delete();
        return text;
    }
    ADD_FAILURE() << "nothing was thrown";
    return CString();
}

template <class Base>
bool resourceExceptionIsCaughtAs()
{
    try {
        AfxThrowResourceException();
    } catch (Base* exception) {
        STATIC_DOWNCAST(CException, exception)->Delete();
        return true;
    }
}

} // namespace

TEST(Exceptions, AreDeletedWhenTheyAreOnTheHeap)
{
    auto* const onHeap = new CProbeException;
    EXPECT_EQ(g_alive, 1);
    onHeap->Delete();
    EXPECT_EQ(g_alive, 0);
    {
        CProbeException onStack(FALSE);
        onStack.Delete();
        EXPECT_EQ(g_alive, 1);
    }
    EXPECT_EQ(g_alive, 0);
}

TEST(Exceptions, WithoutATextSayNothing)
{
    EXPECT_EQ(textOf(CProbeException(FALSE)), L"");
}

TEST(Exceptions, EachKindTellsThePersonWhatHappened)
{
    const CString texts[] = {
        thrownBy<CMemoryException>(&AfxThrowMemoryException),
        thrownBy<CNotSupportedException>(&AfxThrowNotSupportedException),
        thrownBy<CResourceException>(&AfxThrowResourceException),
        thrownBy<CInvalidArgException>(&AfxThrowInvalidArgException),
        thrownBy<CUserException>(&AfxThrowUserException),
    };
    for (const CString& text : texts) {
        EXPECT_EQ(text.Right(1), L".") << "a whole sentence";
        EXPECT_GT(text.GetLength(), 20);
        EXPECT_EQ(std::count(std::begin(texts), std::end(texts), text), 1) << text;
    }
}

TEST(Exceptions, CanBeCaughtAsTheirBases)
{
    EXPECT_TRUE(resourceExceptionIsCaughtAs<CResourceException>());
    EXPECT_TRUE(resourceExceptionIsCaughtAs<CSimpleException>());
    EXPECT_TRUE(resourceExceptionIsCaughtAs<CException>());
    EXPECT_TRUE(resourceExceptionIsCaughtAs<CObject>());
}

TEST(Exceptions, WantOfMemoryNeedsNoMemory)
{
    CMemoryException* thrown[2]{};
    for (CMemoryException*& exception : thrown) {
        try {
            AfxThrowMemoryException();
        } catch (CMemoryException* caught) {
            exception = caught;
            caught->Delete();
        }
    }
    EXPECT_NE(thrown[0], nullptr);
    EXPECT_EQ(thrown[0], thrown[1]) << "there is one, made beforehand";
}

TEST(Exceptions, ATextIsCutToTheBuffer)
{
    const CSimpleException exception(FALSE, IDS_QUESTION);
    wchar_t text[5] = L"####";
    EXPECT_TRUE(exception.GetErrorMessage(text, 5));
    EXPECT_STREQ(text, L"Real");
    EXPECT_FALSE(exception.GetErrorMessage(nullptr, 0));
}

// OLE

TEST(OleExceptions, CarryTheirStatusAndItsText)
{
    try {
        AfxThrowOleException(E_OUTOFMEMORY);
        ADD_FAILURE();
    } catch (COleException* exception) {
        EXPECT_EQ(exception->m_sc, E_OUTOFMEMORY);
        const CString text = textOf(*exception);
        EXPECT_FALSE(text.IsEmpty());
        EXPECT_EQ(CString(text).TrimRight(), text) << "no line end";
        exception->Delete();
    }
}

TEST(OleExceptions, AnUnknownStatusIsNamed)
{
    COleException* const exception = new COleException;
    exception->m_sc = static_cast<SCODE>(0xA0123456);
    EXPECT_EQ(textOf(*exception), L"The operation failed with status 0xA0123456.");
    exception->Delete();
}

TEST(OleExceptions, GiveAStatusForEveryException)
{
    COleException ole;
    ole.m_sc = DISP_E_OVERFLOW;
    EXPECT_EQ(COleException::Process(&ole), DISP_E_OVERFLOW);
    EXPECT_EQ(COleException::Process(std::make_unique<CMemoryException>(FALSE).get()), E_OUTOFMEMORY);
    EXPECT_EQ(COleException::Process(std::make_unique<CNotSupportedException>(FALSE).get()), E_NOTIMPL);
    EXPECT_EQ(COleException::Process(std::make_unique<CUserException>(FALSE).get()), E_UNEXPECTED);
}

// Reporting

TEST(ExceptionReports, ShowTheText)
{
    CSimpleException exception(FALSE, IDS_QUESTION);
    TestApp& app = TestApp::instance();
    app.answerBoxes({IDYES});
    EXPECT_EQ(exception.ReportError(MB_YESNO | MB_ICONQUESTION), IDYES);
    ASSERT_EQ(app.boxes().size(), 1u);
    EXPECT_EQ(app.boxes()[0].text, L"Really?");
    EXPECT_EQ(app.boxes()[0].type, UINT{MB_YESNO | MB_ICONQUESTION});
}

TEST(ExceptionReports, WithoutATextShowTheOneThatWasGiven)
{
    CProbeException exception(FALSE);
    TestApp& app = TestApp::instance();
    exception.ReportError(MB_OK, IDS_QUESTION);
    exception.ReportError();
    ASSERT_EQ(app.boxes().size(), 2u);
    EXPECT_EQ(app.boxes()[0].text, L"Really?");
    EXPECT_FALSE(app.boxes()[1].text.empty()) << "the framework's own words";
}

// The macros

TEST(ExceptionMacros, DeleteWhatTheyCatch)
{
    int caught = 0;
    TRY
    {
        THROW(new CProbeException);
    }
    CATCH(CProbeException, e)
    {
        EXPECT_EQ(e->GetRuntimeClass(), RUNTIME_CLASS(CProbeException));
        ++caught;
    }
    END_CATCH
    EXPECT_EQ(caught, 1);
    EXPECT_EQ(g_alive, 0);
}

TEST(ExceptionMacros, TheFirstFittingBlockCatches)
{
    CString caught;
    TRY
    {
        THROW(new CProbeException);
    }
    CATCH(CResourceException, e)
    {
        caught = L"resource";
    }
    AND_CATCH(CProbeException, e)
    {
        caught = L"probe";
    }
    AND_CATCH_ALL(e)
    {
        caught = L"any";
    }
    END_CATCH_ALL
    EXPECT_EQ(caught, L"probe");
    EXPECT_EQ(g_alive, 0);
}

TEST(ExceptionMacros, WhatIsThrownOnLivesOn)
{
    int caught = 0;
    TRY{TRY{THROW(new CProbeException);
}
CATCH_ALL(e)
{
    ++caught;
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH(CProbeException, e)
{
    EXPECT_EQ(g_alive, 1);
    ++caught;
}
END_CATCH
EXPECT_EQ(caught, 2);
EXPECT_EQ(g_alive, 0);
}
