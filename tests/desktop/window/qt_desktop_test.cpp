#include "../map/base_map/world_map.h"
#include "../map/tiles/tile_server.h"
#include "desktop/adapters/base_places.h"
#include "desktop/adapters/qt_desktop.h"
#include "desktop/adapters/qt_prompts.h"
#include "desktop/adapters/wave_sound.h"
#include "desktop/map/widget/map_widget.h"
#include "mapfiles/base_map.h"
#include "platform/failure.h"
#include "window_program.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace ruvenmark {
namespace {

// Of its first page, in points; empty where the file is none.
QSize PageOfPdf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    const QRegularExpression box(QStringLiteral(R"(/MediaBox \[0 0 (\d+)\S* (\d+))"));
    const auto match = box.match(QString::fromLatin1(bytes));
    return bytes.startsWith("%PDF") ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

TEST(QtPromptsTest, BoxesCarryTheTitleAndPlainText)
{
    WindowProgram program;
    QtPrompts prompts;
    prompts.SetWindow(&program.window);
    WhenModal([&](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Ruvenmark"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), QStringLiteral("<b>x</b>"));
        box.button(QMessageBox::Ok)->click();
    });
    prompts.Message("<b>x</b>");
    WhenModal([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(prompts.AskYesNoCancel("?"), Answer::Cancel);
    WhenModal([](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::No)->click(); });
    EXPECT_FALSE(prompts.AskYesNo("?"));
    // A Return in haste saves a map, but deletes nothing.
    WhenModal([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_TRUE(prompts.AskYesNo("?"));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        WhenModal([key](QDialog& dialog) { QTest::keyClick(&dialog, key); });
        EXPECT_FALSE(prompts.AskToDelete("?"));
    }
    WhenModal([](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.nameFilters(), QStringList{QStringLiteral("Station Files (*.*) (*)")});
        files.reject();
    });
    EXPECT_FALSE(prompts.OpenFile("Open", {"Station Files (*.*)", "*.*"}));
}

// Whoever types a whole name means the largest place of it, not a larger one that only begins so.
TEST(BasePlacesTest, AWholeNameIsTheLargestPlaceOfIt)
{
    const BaseMap map = BaseMap::Open(kWorldMapPath);
    const BasePlaces places(&map, QString::fromLatin1(kOtherNamesPath));
    const auto name = [&](std::string_view typed) {
        const auto place = places.Named(typed);
        return place ? place->name + ", " + place->detail : std::string();
    };
    EXPECT_TRUE(name(" yORK ").starts_with("York, ")) << name("york");
    EXPECT_TRUE(name("zurich").starts_with("Zürich, ")) << name("zurich");
    EXPECT_TRUE(name("Wien").starts_with("Vienna, ")) << name("Wien");
    EXPECT_EQ(name("Yor"), "");
    EXPECT_FALSE(BasePlaces(nullptr, {}).Named("York"));
}

TEST(QtDesktopTest, PrintingAsksFirstAndFillsThePage)
{
    WindowProgram program;
    QtDesktop desktop;
    desktop.SetWindow(&program.window, &program.window.Map());
    EXPECT_THROW(desktop.PrintMap({}), Failure);
    WhenModal([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Print"));
        dialog.reject();
    });
    EXPECT_FALSE(desktop.AskPrint("Print"));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("map.pdf"));
    WhenModal([&](QDialog& dialog) {
        QPrinter& printer = *dynamic_cast<QPrintDialog&>(dialog).printer();
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageOrientation(QPageLayout::Landscape);
        dialog.done(QDialog::Accepted);
    });
    const auto choice = desktop.AskPrint("Print");
    ASSERT_TRUE(choice);
    EXPECT_TRUE(choice->bLandscape);
    for (const bool bLandscape : {true, false}) {
        desktop.PrintMap({1, bLandscape});
        const QSize page = PageOfPdf(path);
        EXPECT_EQ(page.width() > page.height(), bLandscape) << page.width() << 'x' << page.height();
    }

    desktop.CopyMapPicture();
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), program.window.Map().size());
}

TEST(QtDesktopTest, APictureIsFetchedOnceAndWhatCameIsTold)
{
    QtDesktop desktop;
    TileServer server;
    const std::string address = QStringLiteral("http://127.0.0.1:%1/1/2/3.png").arg(server.serverPort()).toStdString();
    std::vector<FetchedPicture> came;
    const auto take = [&](const FetchedPicture& picture) { came.push_back(picture); };
    server.bHold = true;
    desktop.FetchPicture(address, take);
    desktop.FetchPicture(address, take); // The former one is given up.
    server.bHold = false;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        server.Release();
        return !came.empty();
    }));
    ASSERT_EQ(came.size(), 1U);
    EXPECT_EQ(came[0].status, 200);
    EXPECT_EQ(came[0].width, 256);
    server.answer = [](const QString&) { return TileServer::Answer{403, "no", "text/plain"}; };
    desktop.FetchPicture(address, take);
    EXPECT_TRUE(QTest::qWaitFor([&] { return came.size() == 2; }));
    EXPECT_EQ(came.back().status, 403);
    EXPECT_EQ(came.back().width, 0);
    const std::string gone = address.substr(0, address.rfind(':')) + ":1/1/2/3.png";
    desktop.FetchPicture(gone, take);
    EXPECT_TRUE(QTest::qWaitFor([&] { return came.size() == 3; }));
    EXPECT_EQ(came.back().status, 0);
    EXPECT_NE(came.back().problem, "");
}

// Nobody writes into it: whoever opens it waits for ever.
TEST(WaveSoundTest, APipeIsNotWaitedFor)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("wave.wav")).toStdString();
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    WaveSound().PlayAndWait(path);
}

} // namespace
} // namespace ruvenmark
