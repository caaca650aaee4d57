#include "Host/Panel/OrvPanelSite.h"
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Panel/OrvPanelCatalog.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* Tag = "<script src=\"/__orv/orvbridge.js\"></script>";

    /** @brief A developer's build in a temporary folder, with a secret beside it. */
    struct FOrvSiteFolder
    {
        FOrvSiteFolder()
        {
            std::filesystem::create_directories(Root / "site" / "assets");
            std::ofstream(Root / "site" / "index.html")
                << "<!doctype html><html><head><title>x</title></head></html>";
            std::ofstream(Root / "site" / "assets" / "app.js") << "console.log(1)";
            std::ofstream(Root / "site" / ".env") << "TOKEN=1";
            std::ofstream(Root / "secret.txt") << "secret";
        }
        ~FOrvSiteFolder() { std::filesystem::remove_all(Root); }

        std::filesystem::path Root =
            std::filesystem::temp_directory_path() / ("orv-site-test-" + std::to_string(getpid()));
    };
} // namespace

TEST(FOrvPanelSiteTest, TheBridgeGoesFirstIntoTheHeadWithoutBreakingTheDocument)
{
    EXPECT_EQ(
        FOrvPanelSite::InjectBridge("<!DOCTYPE html><html lang=en><HEAD data-x><title>t</title></HEAD>"),
        std::string("<!DOCTYPE html><html lang=en><HEAD data-x>") + Tag + "<title>t</title></HEAD>");
    EXPECT_EQ(FOrvPanelSite::InjectBridge("<!doctype html><header>h</header><p>no head</p>"),
              std::string("<!doctype html>") + Tag + "<header>h</header><p>no head</p>");
    EXPECT_EQ(FOrvPanelSite::InjectBridge("<p>fragment</p>"), std::string(Tag) + "<p>fragment</p>");
}

TEST(FOrvPanelSiteTest, ADevelopersBuildServesItsFilesAndNothingOutsideThem)
{
    FOrvSiteFolder Folder;
    const FOrvPanelSite Site((Folder.Root / "site").string(), nullptr);

    const auto Index = Site.Get("/");
    EXPECT_EQ(Index->Code, 200);
    EXPECT_NE(Index->Body.find(Tag), std::string::npos);
    EXPECT_EQ(Site.Get("/assets/app.js")->Body, "console.log(1)");
    EXPECT_EQ(Site.Get("/assets/app.js")->ContentType, "text/javascript; charset=utf-8");
    EXPECT_EQ(Site.Get("/go/product/P1")->Code, 200) << "a single-page app routes its own paths";
    for (const char* Path : {"/../secret.txt", "/assets/../../secret.txt", "/%2e%2e/secret.txt", "/.env",
                             "/assets%2f..%2f..%2fsecret.txt", "/missing.js", "/a%00.html", "/%zz"})
    {
        const auto Answer = Site.Get(Path);
        EXPECT_EQ(Answer->Code, 404) << Path;
        EXPECT_EQ(Answer->Body.find("secret"), std::string::npos) << Path;
    }
}

TEST(FOrvPanelSiteTest, TheDemoSiteHasPagesOnlyForWhatItsCatalogueHolds)
{
    FOrvPanelCatalog Catalog;
    std::string Error;
    ASSERT_TRUE(Catalog.Load(FOrvDemoScene::CatalogJson(), Error)) << Error;
    const FOrvPanelSite Site(ORV_PANEL_SITE_DIR, &Catalog);

    EXPECT_EQ(Site.Get("/go/product/FNV-CH-1102")->Code, 200);
    EXPECT_EQ(Site.Get("/go/finish/FIN-OAK-NAT")->Code, 200);
    EXPECT_EQ(Site.Get("/oauth-device-success")->Code, 200);
    const auto Unknown = Site.Get("/go/product/NO-SUCH-ID");
    EXPECT_EQ(Unknown->Code, 404);
    EXPECT_NE(Unknown->Body.find(Tag), std::string::npos) << "every HTML page gets the bridge";
    EXPECT_EQ(Site.Get("/go/finish/FNV-CH-1102")->Code, 404) << "a product id is no finish";
}
