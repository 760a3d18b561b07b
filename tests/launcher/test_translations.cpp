// SPDX-License-Identifier: GPL-3.0-or-later
// The program in each shipped language: its menus' Alt letters, captions that fit or show whole in a
// tooltip at the smallest and largest zoom, and the key paths (a screen's results with the language's
// decimal separator, a lesson saved in one language and opened in another).
#include <map>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <gtest/gtest.h>

#include "graphwin/Controls.h"
#include "graphwin/FormStyle.h"
#include "graphwin/Language.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/Lesson.h"
#include "screens/ScreenRegistry.h"
#include "screens/frmNewton.h"
#include "tests/screens/ScreenFixture.h"

namespace {

const char* const kLanguages[] = {"en", "es", "fr", "de", "pt_BR"};

struct InLanguage {
    explicit InLanguage(const char* code) { EXPECT_TRUE(i18n::install(QString::fromLatin1(code))) << code; }
    ~InLanguage() { i18n::install(QStringLiteral("en")); }
};

// Every entry of `actions` that a person sees has its own Alt letter; the menus under them too.
void expectDistinctLetters(const QList<QAction*>& actions, const std::string& where)
{
    std::map<QKeySequence, QString> taken;
    for (QAction* a : actions) {
        if (a->isSeparator() || !a->isVisible())
            continue;
        const QKeySequence letter = QKeySequence::mnemonic(a->text());  // "&&" is a plain '&'
        if (!letter.isEmpty()) {
            const auto [at, fresh] = taken.emplace(letter, a->text());
            EXPECT_TRUE(fresh) << where << ": '" << a->text().toStdString() << "' and '" << at->second.toStdString()
                               << "' share " << letter.toString().toStdString();
        }
        if (a->menu())
            expectDistinctLetters(a->menu()->actions(), where + " > " + a->text().toStdString());
    }
}

// Each language is installed and the launcher speaks it: English shows the seed's title, every other
// language a title of its own. No two entries of a menu share an Alt letter, and every caption of every
// form fits its control or shows whole in its tooltip at the smallest and the largest zoom; a grid's
// headings too (German "Schätzung Nr." is wider than the Newton grid's column at the smallest zoom).
TEST(Translations, EachLanguagesAltLettersAreDistinctAndEveryCaptionFitsOrShowsWholeInItsTooltip)
{
    ScriptedDialogs script;
    const QString english = frmGraphingCalc().windowTitle();
    int shortenedHeadings = 0;
    for (const char* code : kLanguages) {
        InLanguage language(code);
        frmGraphingCalc launcher;
        EXPECT_EQ(launcher.windowTitle() == english, std::string(code) == "en") << code;
        EXPECT_EQ(launcher.mnuLanguages.size(), i18n::languages().size());
        expectDistinctLetters(launcher.menuBar->actions(), std::string(code) + " launcher");
        for (const screens::Entry& row : screens::all()) {
            const std::unique_ptr<GraphScreen> screen = row.make();
            screen->Form_Activate();
            expectDistinctLetters(screen->menuBar->actions(), std::string(code) + " " + row.key);
            screen->show();
            for (const double zoom : {0.5, 3.0}) {
                screen->surface->setZoom(zoom);
                QCoreApplication::processEvents();
                for (QWidget* w : screen->surface->findChildren<QWidget*>()) {
                    const QString whole = caption::of(w);
                    if (whole.isEmpty() || !w->isVisible() || w->property(form::kSourceCaption).isNull())
                        continue;
                    EXPECT_TRUE(caption::fits(w) || w->toolTip().startsWith(whole))
                        << code << " " << row.key << " at zoom " << zoom << ": " << w->objectName().toStdString()
                        << " '" << whole.toStdString() << "' has " << caption::room(w) << " px";
                }
                for (const Grid* grid : screen->surface->findChildren<Grid*>())
                    for (int c = 0; c < grid->columnCount() && grid->isVisible(); ++c) {
                        const bool fits = grid->cellFits(0, c);
                        shortenedHeadings += !fits;
                        EXPECT_TRUE(fits || grid->cellTip(0, c) == grid->cell(0, c))
                            << code << " " << row.key << " at zoom " << zoom << ": heading '"
                            << grid->cell(0, c).toStdString() << "'";
                    }
            }
            screen->hide();
        }
    }
    EXPECT_GT(shortenedHeadings, 0);
}

// Newton's method on x^2 - 2 from 1: the next guess is 1 - (1 - 2)/2 = 1.5, the one after it
// 1.5 - 0.25/3 = 17/12 = 1.41666..., each shown with the language's separator; a guess typed with the
// language's decimal comma is read as a number.
TEST(Translations, NewtonsGuessesShowTheLanguagesDecimalSeparator)
{
    // The language, the first guess as typed, the second guess as shown, and the description's words
    // for the curve's colour and the gap 17/12 - 577/408 between the last two guesses.
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"en", "1", "1.5", "in blue 0.00245"},
        {"es", "1", "1,5", "en azul 0,00245"},
        {"fr", "1,0", "1,5", "en bleu 0,00245"},
        {"de", "1,0", "1,5", "in blau 0,00245"},
        {"pt_BR", "1", "1,5", "em azul 0,00245"}};
    ScriptedDialogs script;
    for (const auto& [code, typedGuess, second, said] : rows) {
        InLanguage language(code);
        frmNewton newton;
        newton.Form_Activate();
        ASSERT_EQ(newton.setTypedFunction(QStringLiteral("x^2 - 2")), QString()) << code;
        static QString english;  // the form table's captions are shown in the language (English first)
        if (std::string(code) == "en")
            english = newton.cmdApply->text() + newton.lblGuess->text();
        else
            EXPECT_NE(newton.cmdApply->text() + newton.lblGuess->text(), english) << code;
        newton.cmdPlotto_Click();
        newton.txtGuess->setText(QString::fromLatin1(typedGuess));
        for (int click = 0; click < 3; ++click)  // each click writes the guess it used in its row
            newton.cmdApply_Click();
        EXPECT_EQ(newton.grdGuess->cell(2, 1), QString::fromLatin1(second)) << code;
        const QString third = newton.grdGuess->cell(3, 1);
        EXPECT_TRUE(third.startsWith(QString::fromLatin1(second).left(2) + QStringLiteral("41666")))
            << code << " " << third.toStdString();
        const QString described = newton.describe(), words = QString::fromUtf8(said);
        for (const QString& part : {words.section(QLatin1Char(' '), 0, 1), words.section(QLatin1Char(' '), 2)})
            EXPECT_TRUE(described.contains(part))
                << code << ": " << part.toStdString() << " in " << described.toStdString();
    }
}

// A lesson step captured in one language and opened in another brings back the same numbers.
TEST(Translations, ALessonSavedInOneLanguageOpensInAnother)
{
    ScriptedDialogs script;
    for (const char* from : kLanguages) {
        lesson::Lesson saved;
        {
            InLanguage language(from);
            frmNewton newton;
            newton.Form_Activate();
            // A guess typed as the teacher writes it in that language.
            newton.txtGuess->setText(i18n::decimals(QStringLiteral("2.5")));
            saved.steps.push_back(lesson::capture(newton));
        }
        const QByteArray json = lesson::toJson(saved);
        for (const char* to : kLanguages) {
            InLanguage language(to);
            const lesson::Read read = lesson::fromJson(json);
            ASSERT_TRUE(read.error.isEmpty()) << from << " -> " << to;
            frmNewton newton;
            newton.Form_Activate();
            EXPECT_EQ(lesson::apply(read.lesson->steps.front(), newton), 0);
            EXPECT_EQ(newton.txtGuess->number(), std::optional<double>(2.5)) << from << " -> " << to;
            // A button named by its English caption (a lesson of an earlier release) is found in any language.
            EXPECT_EQ(lesson::buttonKey(newton, QStringLiteral("Graph Derivative")), QStringLiteral("cmdDeriv")) << to;
        }
    }
}

}  // namespace
