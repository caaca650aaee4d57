#include "Core/Bridge/OrvLibraryJson.h"

#include "Core/Json/OrvJsonWriter.h"

namespace OrvWebBridge
{
    std::string FOrvLibraryJson::Write(const FOrvLibraryRecord& Library)
    {
        std::string Text;
        FOrvJsonWriter Writer(Text, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        Writer.String("libraryId", Library.LibraryId);
        Writer.BeginArray("files");
        for (const FOrvLibraryFile& File : Library.Files)
        {
            Writer.BeginObject();
            Writer.String("productid", File.ProductId);
            Writer.String("filename", File.FileName);
            Writer.String("name", File.Name);
            Writer.String("assetType", File.AssetType);
            Writer.EndObject();
        }
        Writer.EndArray();
        Writer.BeginArray("installedProducts");
        for (const FOrvInstalledProduct& Product : Library.InstalledProducts)
        {
            Writer.BeginObject();
            Writer.String("productName", Product.ProductName);
            Writer.String("brandName", Product.BrandName);
            Writer.String("imageUrl", Product.ImageUrl);
            Writer.Number("sizeInMB", Product.SizeInMB);
            Writer.BeginArray("files");
            for (const FOrvInstalledFile& File : Product.Files)
            {
                Writer.BeginObject();
                Writer.String("url", File.Url);
                Writer.Bool("downloaded", File.bDownloaded);
                Writer.String("unrealPath", File.UnrealPath);
                Writer.String("product", File.Product);
                Writer.String("name", File.Name);
                Writer.EndObject();
            }
            Writer.EndArray();
            Writer.EndObject();
        }
        Writer.EndArray();
        Writer.EndObject();
        return Text;
    }
} // namespace OrvWebBridge
