// Which language the texts come in.
#include "ResourceTexts.h"
#include "support/PlatformSetting.h"

#include <afxwin.h>
#include <ovoui/frame/Language.h>
#include <ovouires/resource.h>

#include <ovocor/ovocor.h>
#include <ovomsg/ovomsg.h>

#include <gtest/gtest.h>

#include <future>

namespace
{

constexpr LANGID kGerman = MAKELANGID(LANG_GERMAN, SUBLANG_NEUTRAL);
constexpr LANGID kAustrian = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN_AUSTRIAN);
constexpr LANGID kItalian = MAKELANGID(LANG_ITALIAN, SUBLANG_NEUTRAL);

std::wstring cancel()
{
    CString text;
    text.LoadString(IDS_BUTTON_CANCEL);
    return text.GetString();
}

class TextLanguage : public testing::Test
{
protected:
    void TearDown() override { setTextLanguage(0); }
};

} // namespace

TEST_F(TextLanguage, IsThatOfTheUser)
{
    // The tests run for a user whose language is English.
    EXPECT_EQ(textLanguage(), L"en");
    EXPECT_EQ(cancel(), L"Cancel");
}

TEST_F(TextLanguage, IsOneOfSixWithEnglishFirst)
{
    const std::vector<LANGID> languages = textLanguages();
    EXPECT_EQ(languages, (std::vector<LANGID>{0x0009, 0x0007, 0x000A, 0x000C, 0x0011, 0x0015}));
}

TEST_F(TextLanguage, CanBeChosen)
{
    const struct
    {
        LANGID language;
        const wchar_t* tag;
        const wchar_t* cancel;
        const wchar_t* message;
    } cases[] = {{0x0009, L"en", L"Cancel", L"The update list cannot be read"},
                 {0x0007, L"de", L"Abbrechen", L"Die Updateliste kann nicht gelesen werden"},
                 {0x000C, L"fr", L"Annuler", L"La liste de mises à jour ne peut pas être lue"},
                 {0x000A, L"es", L"Cancelar", L"No se puede leer la lista de actualizaciones"},
                 {0x0015, L"pl", L"Anuluj", L"Nie można odczytać listy aktualizacji"},
                 {0x0011, L"ja", L"キャンセル", L"更新一覧を読み取れません"}};
    for (const auto& one : cases) {
        ASSERT_TRUE(setTextLanguage(one.language));
        EXPECT_EQ(textLanguage(), one.tag);
        EXPECT_EQ(cancel(), one.cancel);
        EXPECT_EQ(ovoMsg(OVOMSG_UPDATE_LIST_NOT_READ), one.message);
    }
}

TEST_F(TextLanguage, HoldsForDialogsAndMenus)
{
    ASSERT_TRUE(setTextLanguage(kGerman));
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_UPDATE_OFFER));
    CString caption;
    dialog.GetWindowText(caption);
    EXPECT_EQ(caption, L"Update verfügbar");
    dialog.DestroyWindow();

    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_DROP_MENU));
    CString move;
    menu.GetSubMenu(0)->GetMenuString(0, move, MF_BYPOSITION);
    EXPECT_EQ(move, L"Hierher &verschieben");
}

TEST_F(TextLanguage, HoldsForTheErrorsOfTheCoreLibrary)
{
    ASSERT_TRUE(setTextLanguage(kGerman));
    const auto messageOf = [](auto failing) -> std::wstring {
        try {
            failing();
        } catch (const OvoError& error) {
            return error.wwhat();
        }
        return L"no error";
    };
    EXPECT_TRUE(messageOf([] { canonicalizeUrl(L""); }).starts_with(L"Die Adresse „“ ist ungültig"));
    EXPECT_TRUE(messageOf([] {
                    downloadUrlToCache(L"ftp://example.org/list");
                }).ends_with(L"Nur Adressen mit http und https können heruntergeladen werden."));
    EXPECT_EQ(messageOf([] { OVO::CSVParser(L""); }),
              L"Die Kopfzeile des kommagetrennten Texts enthält keine Spaltennamen.");
    EXPECT_EQ(messageOf(throwIntCast), L"Die Zahl liegt außerhalb des zulässigen Bereichs.");
}

TEST_F(TextLanguage, HoldsForTheFramework)
{
    const struct
    {
        LANGID language;
        const wchar_t* prompt;
        const wchar_t* refusal;
    } cases[] = {
        {0x0009, L"Saves the active document\nSave", L"Enter a whole number between 1 and 9."},
        {0x0007, L"Speichert das aktive Dokument\nSpeichern",
         L"Geben Sie eine ganze Zahl zwischen 1 und 9 ein."},
        {0x000C, L"Enregistre le document actif\nEnregistrer",
         L"Entrez un nombre entier compris entre 1 et 9."},
        {0x000A, L"Guarda el documento activo\nGuardar", L"Escriba un número entero entre 1 y 9."},
        {0x0015, L"Zapisuje aktywny dokument\nZapisz", L"Wprowadź liczbę całkowitą z zakresu od 1 do 9."},
        {0x0011, L"作業中のドキュメントを保存します\n上書き保存",
         L"1 から 9 までの整数を入力してください。"}};
    for (const auto& one : cases) {
        ASSERT_TRUE(setTextLanguage(one.language));
        CString text;
        EXPECT_TRUE(text.LoadString(ID_FILE_SAVE));
        EXPECT_EQ(text, one.prompt);
        AfxFormatString2(text, AFX_IDP_PARSE_INT_RANGE, L"1", L"9");
        EXPECT_EQ(text, one.refusal);
    }
    CNotSupportedException error;
    ASSERT_TRUE(setTextLanguage(kGerman));
    wchar_t message[100];
    ASSERT_TRUE(error.GetErrorMessage(message, 100));
    EXPECT_STREQ(message, L"Dieser Vorgang wird nicht unterstützt.");
}

TEST_F(TextLanguage, IsTheSameInEveryRegion)
{
    ASSERT_TRUE(setTextLanguage(kAustrian));
    EXPECT_EQ(textLanguage(), L"de");
}

TEST_F(TextLanguage, LeavesTheLocaleOfTheThreadAloneWhereItNeedsNotHaveTheLanguage)
{
    ovo::testkit::PlatformSetting setting;
    setting->takesLanguageFromLocale = false;
    const LCID before = ::GetThreadLocale();
    EXPECT_TRUE(setTextLanguage(kGerman));
    EXPECT_EQ(::GetThreadLocale(), before);
    EXPECT_FALSE(setTextLanguage(kItalian));
    setting->takesLanguageFromLocale = true;
    EXPECT_TRUE(setTextLanguage(kGerman));
    EXPECT_EQ(PRIMARYLANGID(LANGIDFROMLCID(::GetThreadLocale())), LANG_GERMAN);
}

TEST_F(TextLanguage, OfAUserFromAnotherRegionIsFound)
{
    // What the system looks for where the user's language is that of Austria.
    const HMODULE module = ::GetModuleHandleW(L"ovouires.dll");
    EXPECT_EQ(stringOf(module, IDS_LANGUAGE, kAustrian), L"de");
    EXPECT_EQ(stringOf(module, IDS_LANGUAGE, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_UK)), L"en");
    EXPECT_EQ(stringOf(module, IDS_LANGUAGE, MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MEXICAN)), L"es");
}

TEST_F(TextLanguage, WithoutTextsIsRefusedAndChangesNothing)
{
    ASSERT_TRUE(setTextLanguage(kGerman));
    EXPECT_FALSE(setTextLanguage(kItalian));
    EXPECT_EQ(textLanguage(), L"de");
}

TEST_F(TextLanguage, OfAUserThatThereAreNoTextsInIsEnglish)
{
    ASSERT_TRUE(::SetThreadLocale(MAKELCID(MAKELANGID(LANG_ITALIAN, SUBLANG_ITALIAN), SORT_DEFAULT)));
    EXPECT_EQ(textLanguage(), L"en");
    EXPECT_EQ(cancel(), L"Cancel");
    EXPECT_EQ(ovoMsg(OVOMSG_UPDATE_LIST_NOT_READ), L"The update list cannot be read");
}

TEST_F(TextLanguage, GoesBackToThatOfTheUser)
{
    ASSERT_TRUE(setTextLanguage(kGerman));
    ASSERT_TRUE(setTextLanguage(0));
    EXPECT_EQ(textLanguage(), L"en");
    EXPECT_EQ(::GetThreadLocale(), ::GetUserDefaultLCID());
}

TEST_F(TextLanguage, IsThatOfTheThreadAlone)
{
    ASSERT_TRUE(setTextLanguage(kGerman));
    EXPECT_EQ(std::async(std::launch::async, textLanguage).get(), L"en");
}
