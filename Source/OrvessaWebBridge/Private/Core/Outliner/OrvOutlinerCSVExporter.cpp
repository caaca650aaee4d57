#include "Core/Outliner/OrvOutlinerCSVExporter.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvLogging.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Outliner/OrvOutlinerScheduleOrder.h"
#include "Core/Outliner/OrvOutlinerTreeBuilder.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

namespace
{
    constexpr std::string_view OrvCsvSeparatorLine = ",,,,,,,,,,\n";
    constexpr std::string_view OrvCsvFallbackVersion = "0.6.0";

    void OrvCsvAppendInteger(std::string& Out, std::int64_t Value)
    {
        char Buffer[24];
        const auto Result = std::to_chars(Buffer, Buffer + sizeof(Buffer), Value);
        Out.append(Buffer, Result.ptr);
    }

    // Whether a field holds , " LF or CR, eight bytes at a time: a schedule is mostly plain text, and
    // this check runs over every byte of it.
    bool OrvCsvNeedsQuoting(std::string_view Field)
    {
        constexpr std::uint64_t Ones = 0x0101010101010101ull;
        constexpr std::uint64_t Highs = 0x8080808080808080ull;
        const auto HasByte = [](std::uint64_t Word, std::uint8_t Byte)
        {
            const std::uint64_t Match = Word ^ (Ones * Byte);
            return ((Match - Ones) & ~Match & Highs) != 0;
        };
        std::size_t Index = 0;
        for (; Index + 8 <= Field.size(); Index += 8)
        {
            std::uint64_t Word;
            std::memcpy(&Word, Field.data() + Index, 8);
            if (HasByte(Word, ',') || HasByte(Word, '"') || HasByte(Word, '\n') || HasByte(Word, '\r'))
            {
                return true;
            }
        }
        for (; Index < Field.size(); ++Index)
        {
            const char Character = Field[Index];
            if (Character == ',' || Character == '"' || Character == '\n' || Character == '\r')
            {
                return true;
            }
        }
        return false;
    }

    // A header line "Label,value,,,,,,,,,,".
    void OrvCsvAppendHeaderValue(std::string& Out, std::string_view Label, std::string_view EscapedValue)
    {
        Out.append(Label);
        Out.append(EscapedValue);
        Out.append(OrvCsvSeparatorLine);
    }
} // namespace

std::string FOrvOutlinerCSVExporter::EscapeCSVField(std::string_view Field)
{
    std::string Out;
    AppendEscapedField(Out, Field);
    return Out;
}

void FOrvOutlinerCSVExporter::AppendEscapedField(std::string& Out, std::string_view Field)
{
    if (!OrvCsvNeedsQuoting(Field))
    {
        Out.append(Field);
        return;
    }
    Out.push_back('"');
    for (const char Character : Field)
    {
        if (Character == '"')
        {
            Out.push_back('"');
        }
        Out.push_back(Character);
    }
    Out.push_back('"');
}

std::string FOrvOutlinerCSVExporter::GenerateCSV(const FOrvSceneProductMap& Products,
                                                 std::string_view ProjectName, std::string_view Revision,
                                                 const IOrvEditorWorld& World,
                                                 const IOrvEnvironment& Environment)
{
    // The rows are written in map order, the order in which products and their texts were made, so
    // that reading them walks memory forwards; then they are copied out in schedule order.
    std::vector<const FOrvSceneProduct*> InMapOrder;
    InMapOrder.reserve(Products.Num());
    std::size_t FieldBytes = 0;
    for (const FOrvSceneProductPtr& Product : Products)
    {
        InMapOrder.push_back(Product.get());
        FieldBytes += Product->Brand.size() + Product->Name.size() + Product->Collection.size() +
                      Product->Designer.size() + Product->Category.size() + Product->Dimensions.size() +
                      Product->Weight.size() + Product->Website.size() + Product->Description.size();
    }
    // Separators, quantity and line end of each row, and a little quoting.
    const std::size_t RowBytes = FieldBytes + FieldBytes / 16 + InMapOrder.size() * 24;

    std::string Rows;
    Rows.reserve(RowBytes);
    std::vector<std::size_t> RowStart;
    RowStart.reserve(InMapOrder.size() + 1);
    std::int64_t TotalItems = 0;
    for (const FOrvSceneProduct* Product : InMapOrder)
    {
        RowStart.push_back(Rows.size());
        const std::int32_t Quantity = FOrvOutlinerTreeBuilder::CountLiveActors(*Product, World);
        TotalItems += Quantity;
        OrvCsvAppendInteger(Rows, Quantity);
        Rows.push_back(',');
        for (const std::string* Field :
             {&Product->Brand, &Product->Name, &Product->Collection, &Product->Designer, &Product->Category,
              &Product->Dimensions, &Product->Weight})
        {
            AppendEscapedField(Rows, *Field);
            Rows.push_back(',');
        }
        Rows.push_back(','); // Notes, left for the user
        AppendEscapedField(Rows, Product->Website);
        Rows.push_back(',');
        AppendEscapedField(Rows, Product->Description);
        Rows.push_back('\n');
    }
    RowStart.push_back(Rows.size());

    std::string Out;
    Out.reserve(512 + ProjectName.size() + Revision.size() + Rows.size());
    Out.append("ORVESSA - Product Schedule,,,,,,,,,,\n");
    Out.append(OrvCsvSeparatorLine);
    OrvCsvAppendHeaderValue(Out, "Project:,", EscapeCSVField(ProjectName));
    OrvCsvAppendHeaderValue(Out, "Date:,", Environment.GetLocalDate());
    OrvCsvAppendHeaderValue(Out, "Revision:,", EscapeCSVField(Revision));
    Out.append(OrvCsvSeparatorLine);
    Out.append("Prepared by:,,,,,,,,,,\n"
               "Name:,,,,,,,,,,\n"
               "Company:,,,,,,,,,,\n"
               "Email:,,,,,,,,,,\n");
    Out.append(OrvCsvSeparatorLine);
    Out.append("FURNITURE SCHEDULE,,,,,,,,,,\n");
    Out.append(
        "Qty,Brand,Product,Collection,Designer,Category,Dimensions,Weight,Notes,Product URL,Description\n");
    for (const std::size_t Index : OrvOutlinerScheduleOrder(InMapOrder))
    {
        Out.append(Rows, RowStart[Index], RowStart[Index + 1] - RowStart[Index]);
    }
    Out.append(OrvCsvSeparatorLine);
    OrvCsvAppendInteger(Out, TotalItems);
    Out.append(",TOTAL ITEMS,,,,,,,,,,\n");
    Out.append(OrvCsvSeparatorLine);
    const std::optional<std::string> Version = Environment.FindPluginVersion(FOrvConstants::PluginName);
    Out.append("Generated by ORVESSA Plugin v");
    Out.append(Version ? std::string_view(*Version) : OrvCsvFallbackVersion);
    Out.append(OrvCsvSeparatorLine);
    return Out;
}

bool FOrvOutlinerCSVExporter::SaveCSVToFile(std::string_view CSVContent, std::string_view DefaultFileName,
                                            IOrvFiles& Files, const IOrvEnvironment& Environment,
                                            IOrvLog& Log)
{
    if (!Files.IsDesktopPlatformAvailable())
    {
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Error,
                "FOrvOutlinerCSVExporter: Desktop platform not available");
        return false;
    }

    FOrvSaveDialogRequest Request;
    Request.Title = "Save Product Schedule";
    Request.DefaultPath = Environment.GetProjectDir();
    Request.DefaultFile = std::string(DefaultFileName);
    Request.FileTypes = "CSV Files (*.csv)|*.csv";
    std::vector<std::string> ChosenFiles;
    if (!Files.SaveFileDialog(Request, ChosenFiles) || ChosenFiles.empty())
    {
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "FOrvOutlinerCSVExporter: Save dialog cancelled");
        return false;
    }

    std::string FilePath = ChosenFiles.front();
    if (!FOrvStrings::EndsWithIgnoreCase(FilePath, ".csv"))
    {
        FilePath += ".csv";
    }
    if (!Files.SaveStringToFile(CSVContent, FilePath))
    {
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Error,
                "FOrvOutlinerCSVExporter: Failed to save CSV to %s", FilePath.c_str());
        return false;
    }
    OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log, "FOrvOutlinerCSVExporter: Saved CSV to %s",
            FilePath.c_str());
    return true;
}
