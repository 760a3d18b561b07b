// SPDX-License-Identifier: GPL-3.0-or-later
// The language rules: which shipped language a locale stands for, which one the program starts in,
// the decimal separator of shown numbers and of typed ones, and funclib's sentences shown in the
// language.
#include <gtest/gtest.h>

#include "funclib/EpsilonDelta.h"
#include "funclib/FunctionSource.h"
#include "funclib/TypedExpression.h"
#include "graphwin/Controls.h"
#include "graphwin/Language.h"

namespace {

struct InLanguage {
    explicit InLanguage(const char* code) { EXPECT_TRUE(i18n::install(QString::fromLatin1(code))) << code; }
    ~InLanguage() { i18n::install(QStringLiteral("en")); }
};

TEST(Language, LocaleNamesStandForTheShippedLanguages)
{
    // clang-format off
    const std::pair<const char*, const char*> rows[] = {
        {"de_DE.UTF-8", "de"}, {"de_AT", "de"}, {"es", "es"}, {"es_MX.UTF-8", "es"}, {"fr_CA@euro", "fr"},
        {"pt_BR.UTF-8", "pt_BR"}, {"pt", "pt_BR"}, {"pt-BR", "pt_BR"}, {"en_GB.UTF-8", "en"}, {"C", ""},
        {"POSIX", ""}, {"ja_JP.UTF-8", ""}, {"", ""}};
    // clang-format on
    for (const auto& [locale, shipped] : rows)
        EXPECT_EQ(i18n::shippedFor(QString::fromLatin1(locale)), QString::fromLatin1(shipped)) << locale;
}

TEST(Language, TheAskedLanguageThenTheRememberedOneThenTheDesktopsThenEnglish)
{
    // clang-format off
    const struct { const char* name; const char* asked; const char* remembered; QStringList desktop; const char* chosen;
    } rows[] = {
        {"--lang wins", "fr", "de", {QStringLiteral("es_ES.UTF-8")}, "fr"},
        {"an unknown --lang falls through", "xx", "de", {}, "de"},
        {"the remembered choice beats the desktop", "", "pt_BR", {QStringLiteral("de_DE.UTF-8")}, "pt_BR"},
        {"the first shipped desktop language", "", "", {QStringLiteral("ja"), QStringLiteral("es")}, "es"},
        {"nothing shipped: English", "", "", {QStringLiteral("ja_JP.UTF-8")}, "en"},
        {"nothing at all: English", "", "", {}, "en"},
    };
    // clang-format on
    for (const auto& r : rows)
        EXPECT_EQ(i18n::choose(QString::fromLatin1(r.asked), QString::fromLatin1(r.remembered), r.desktop),
                  QString::fromLatin1(r.chosen))
            << r.name;
}

TEST(Language, NumbersShowAndReadWithTheLanguagesSeparator)
{
    // As shown in German (English shows the classic text unchanged, as every screen's test reads it).
    // clang-format off
    const std::pair<const char*, const char*> rows[] = {
        {"1.5", "1,5"}, {" .25", " ,25"}, {"-3.5E+20", "-3,5E+20"}, {"12", "12"}, {"x = 2.", "x = 2."},
        {"Newton's Method. Go", "Newton's Method. Go"}, {"(1.5,-2.25)", "(1,5,-2,25)"}};
    // clang-format on
    // A box reads a decimal comma only where the language writes one; English reads by the classic
    // rules: the number ends at the comma.
    QWidget form;
    TextBox box(&form, QStringLiteral("2,75"));
    EXPECT_EQ(box.number(), std::optional<double>(2));
    for (const char* code : {"de", "es", "fr", "pt_BR"}) {
        InLanguage language(code);
        EXPECT_EQ(std::pair(box.number(), box.value()), std::pair(std::optional<double>(2.75), 2.75)) << code;
    }
    InLanguage language("de");
    for (const auto& [classic, german] : rows)
        EXPECT_EQ(i18n::decimals(QString::fromLatin1(classic)), QString::fromLatin1(german)) << classic;
    EXPECT_EQ(i18n::typedDecimals(QStringLiteral("1,5")), QStringLiteral("1.5"));
    EXPECT_EQ(i18n::typedDecimals(QStringLiteral("1.5")), QStringLiteral("1.5"));
}

// funclib writes English; the screen shows the sentence in the language, the place and the typed
// text kept, a number with the language's separator, a refusal inside a refusal translated too.
TEST(Language, FunclibsSentencesShowInTheLanguageWithTheirPlacesAndNumbers)
{
    const auto refusal = [](const char* text) {
        std::string error;
        FuncGlobals::TypedExpression::compile(text, {"x"}, error);
        return error;
    };
    std::string ratesRefusal;
    FuncGlobals::TypedRates::make("x +", "1", ratesRefusal);
    // clang-format off
    const struct { const char* name; const char* code; std::string english; const char* shown; } rows[] = {
        {"a name and its place", "de", refusal("sinn(x)"), "unbekannter Name 'sinn' an Stelle 1"},
        // "(x + 1" has 6 characters: the missing bracket is at the end, place 7.
        {"the end of the text", "fr", refusal("(x + 1"), "il manque ')' à la position 7"},
        {"two arguments in order", "es", refusal("2x"), "falta '*': escriba 2*x para un producto en 2"},
        {"a refusal inside a refusal", "pt_BR", ratesRefusal, "dy: falta um termo depois de '+' na posição 4"},
        {"numbers with a decimal comma", "de", limits::largestDelta({}, 5, 0, 0.5, -1.5, 2.5).words,
         "a = 5 liegt nicht im Fenster von -1,5 bis 2,5: verschieben Sie a oder vergrößern Sie das Fenster, um δ "
         "zu suchen."},
        {"a text of no template", "de", "x^2 - 4", "x^2 - 4"},
    };
    // clang-format on
    for (const auto& row : rows) {
        InLanguage language(row.code);
        EXPECT_EQ(i18n::words(row.english), QString::fromUtf8(row.shown)) << row.name;
    }
}

}  // namespace
