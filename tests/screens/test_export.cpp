// SPDX-License-Identifier: GPL-3.0-or-later
// The graph leaving the program: the three file formats as other programs read them, and what a bad
// file name does. What each screen's page looks like is compared in test_pictures.cpp.
#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "graphwin/GraphExport.h"
#include "screens/ScreenRegistry.h"

#include "ScreenFixture.h"

namespace {

// The colours of the strokes and fills an SVG file uses.
QSet<QString> svgColours(const QByteArray& svg)
{
    QSet<QString> colours;
    static const QRegularExpression colour(QStringLiteral("(?:stroke|fill)=\"(#[0-9a-f]{6})\""));
    for (const auto& m : colour.globalMatch(QString::fromUtf8(svg)))
        colours.insert(m.captured(1));
    return colours;
}

}  // namespace

// The three formats as other programs read them: an SVG of paths, a one-page PDF whose text is the
// caption, a PNG of the chosen resolution; in black and white, no colour but greys and line styles.
TEST(Export, FilesOfEachFormatAsOtherProgramsReadThem)
{
    const screens::Entry& row = *screens::find(QStringLiteral("grapher"));
    std::unique_ptr<GraphScreen> screen = row.make();
    row.showcase(*screen);
    QTemporaryDir dir;
    const graphexport::Graph g = screen->exportedGraph();

    ASSERT_EQ(screen->exportGraph(dir.filePath(QStringLiteral("g.svg")), {}), QString());
    const QByteArray svg = fileBytes(dir.filePath(QStringLiteral("g.svg")));
    EXPECT_GE(svg.count("<path"), 20);
    EXPECT_TRUE(svg.contains("Window: x from")) << "the caption is text in the file";

    graphexport::Options mono;
    mono.colour = false;
    ASSERT_EQ(screen->exportGraph(dir.filePath(QStringLiteral("mono.svg")), mono), QString());
    const QByteArray monoSvg = fileBytes(dir.filePath(QStringLiteral("mono.svg")));
    for (const QString& c : svgColours(monoSvg))  // #rrggbb
        EXPECT_TRUE(c.mid(1, 2) == c.mid(3, 2) && c.mid(3, 2) == c.mid(5, 2)) << c.toStdString() << " is not a grey";
    EXPECT_TRUE(monoSvg.contains("stroke-dasharray")) << "the curves told apart by line styles";

    for (int dpi : {300, 150}) {
        graphexport::Options o;
        o.dpi = dpi;
        const QString png = dir.filePath(QStringLiteral("g%1.png").arg(dpi));
        ASSERT_EQ(screen->exportGraph(png, o), QString());
        const QImage image(png);
        // 1440 twips to the inch: the page's twips times dpi / 1440.
        const QSizeF page = graphexport::pageTwips(g, o);
        EXPECT_EQ(image.width(), std::lround(page.width() * dpi / 1440.0)) << dpi;
        EXPECT_EQ(image.height(), std::lround(page.height() * dpi / 1440.0)) << dpi;
        EXPECT_NEAR(image.dotsPerMeterX() * 0.0254, dpi, 0.5);
    }

    const QString pdf = dir.filePath(QStringLiteral("g.pdf"));
    ASSERT_EQ(screen->exportGraph(pdf, {}), QString());
    const QString pdfinfo = QStandardPaths::findExecutable(QStringLiteral("pdfinfo"));
    if (pdfinfo.isEmpty())
        GTEST_SKIP() << "pdfinfo (poppler-utils) is not installed";
    EXPECT_TRUE(toolOutput(pdfinfo, {pdf}).contains(QRegularExpression(QStringLiteral("Pages:\\s+1\\n"))));
    const QString text =
        toolOutput(QStandardPaths::findExecutable(QStringLiteral("pdftotext")), {pdf, QStringLiteral("-")});
    EXPECT_TRUE(text.contains(QStringLiteral("Window: x from"))) << text.toStdString();
    EXPECT_TRUE(text.contains(screen->txtXmax->text())) << text.toStdString();
}

// A file name that says no format, a folder that does not exist, a name that is a folder: a message
// in words, and nothing left under the name (nor a temporary file beside it).
TEST(Export, BadFileNamesAreToldAndLeaveNoFile)
{
    std::unique_ptr<GraphScreen> screen = screens::find(QStringLiteral("grapher"))->make();
    QTemporaryDir dir;
    QDir(dir.path()).mkdir(QStringLiteral("taken.svg"));
    for (const auto& [name, says] : {std::pair("graph", "end it with .svg, .pdf or .png"),
                                     {"graph.jpg", "end it with .svg, .pdf or .png"},
                                     {"no/such/folder/graph.pdf", "Could not write"},
                                     {"taken.svg", "Could not write"}}) {  // a folder's name
        const QString error = screen->exportGraph(dir.filePath(QLatin1String(name)), {});
        EXPECT_TRUE(error.contains(QLatin1String(says))) << name << ": " << error.toStdString();
    }
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList()) << "a file was left behind";

    // Through the menu: the message is shown, and a good name writes the file after asking the options.
    ScriptedDialogs script;
    script.answers = {dir.filePath(QStringLiteral("graph")), dir.filePath(QStringLiteral("graph.png"))};
    screen->mnuExportGraph_Click();
    screen->mnuExportGraph_Click();
    ASSERT_EQ(script.shown.size(), 4u);
    EXPECT_EQ(script.shown[1].first, QStringLiteral("Export Graph"));
    EXPECT_TRUE(script.shown[1].second.contains(QStringLiteral("end it with"))) << script.shown[1].second.toStdString();
    EXPECT_EQ(script.shown[3].second, QStringLiteral("options"));
    EXPECT_TRUE(QFile::exists(dir.filePath(QStringLiteral("graph.png"))));
}
