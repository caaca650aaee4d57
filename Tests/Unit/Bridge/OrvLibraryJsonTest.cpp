#include "Core/Bridge/OrvLibraryJson.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

TEST(FOrvLibraryJsonTest, EveryKeyAsThePageReadsItCondensedAndEscaped)
{
    FOrvLibraryRecord Library;
    Library.LibraryId = "lib-7";
    Library.Files.push_back({"P1", "P1.zip", "Tavolino \"Sasso\"", "product"});
    FOrvInstalledProduct Product{"Sedia", "Forma Nova", "https://img.example/p2.jpg", 12.5, {}};
    Product.Files.push_back({"https://cdn.example/p2.zip", true, "/Game/ORVESSA/P2", "P2", "SM_Sedia"});
    Library.InstalledProducts.push_back(Product);

    EXPECT_EQ(
        FOrvLibraryJson::Write(Library),
        R"({"libraryId":"lib-7","files":[{"productid":"P1","filename":"P1.zip","name":"Tavolino \"Sasso\"",)"
        R"("assetType":"product"}],"installedProducts":[{"productName":"Sedia","brandName":"Forma Nova",)"
        R"("imageUrl":"https://img.example/p2.jpg","sizeInMB":12.5,"files":[{"url":"https://cdn.example/p2.zip",)"
        R"("downloaded":true,"unrealPath":"/Game/ORVESSA/P2","product":"P2","name":"SM_Sedia"}]}]})");
    EXPECT_EQ(FOrvLibraryJson::Write({}), R"({"libraryId":"","files":[],"installedProducts":[]})");
}
