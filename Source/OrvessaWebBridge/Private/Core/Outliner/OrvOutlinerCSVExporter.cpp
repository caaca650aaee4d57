#include "Core/Outliner/OrvOutlinerCSVExporter.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvLogging.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Common/OrvUtf8.h"
#include "Core/Outliner/OrvOutlinerScheduleOrder.h"
#include "Core/Outliner/OrvOutlinerTreeBuilder.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace OrvWebBridge
{
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

        // Whether a field holds , " LF or CR. This runs over every byte of the schedule, which is mostly
        // plain text: with SSE2 (every x64 editor has it) sixteen bytes are compared at a time, elsewhere
        // eight (a zero byte in Word ^ Pattern marks a match).
        bool OrvCsvNeedsQuoting(std::string_view Field)
        {
            std::size_t Index = 0;
#if defined(__SSE2__) || defined(_M_X64)
            const __m128i Comma = _mm_set1_epi8(',');
            const __m128i Quote = _mm_set1_epi8('"');
            const __m128i LineFeed = _mm_set1_epi8('\n');
            const __m128i CarriageReturn = _mm_set1_epi8('\r');
            for (; Index + 16 <= Field.size(); Index += 16)
            {
                const __m128i Block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Field.data() + Index));
                const __m128i Hits = _mm_or_si128(
                    _mm_or_si128(_mm_cmpeq_epi8(Block, Comma), _mm_cmpeq_epi8(Block, Quote)),
                    _mm_or_si128(_mm_cmpeq_epi8(Block, LineFeed), _mm_cmpeq_epi8(Block, CarriageReturn)));
                if (_mm_movemask_epi8(Hits) != 0)
                {
                    return true;
                }
            }
#endif
            constexpr std::uint64_t Ones = 0x0101010101010101ull;
            constexpr std::uint64_t Highs = 0x8080808080808080ull;
            const auto Matches = [](std::uint64_t Word, unsigned char Byte)
            {
                const std::uint64_t Masked = Word ^ (Ones * Byte);
                return (Masked - Ones) & ~Masked & Highs;
            };
            std::uint64_t Found = 0;
            for (; Index + 8 <= Field.size(); Index += 8)
            {
                std::uint64_t Word;
                std::memcpy(&Word, Field.data() + Index, 8);
                Found |= Matches(Word, ',') | Matches(Word, '"') | Matches(Word, '\n') | Matches(Word, '\r');
            }
            for (; Index < Field.size(); ++Index)
            {
                const char Character = Field[Index];
                Found |= (Character == ',') | (Character == '"') | (Character == '\n') | (Character == '\r');
            }
            return Found != 0;
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
        // Quoted: copied in runs up to each double quote, which is written twice.
        Out.push_back('"');
        for (std::size_t Quote = Field.find('"'); Quote != std::string_view::npos; Quote = Field.find('"'))
        {
            Out.append(Field.substr(0, Quote + 1));
            Out.push_back('"');
            Field.remove_prefix(Quote + 1);
        }
        Out.append(Field);
        Out.push_back('"');
    }

    std::string FOrvOutlinerCSVExporter::GenerateCSV(const FOrvSceneProductMap& Products,
                                                     std::string_view ProjectName, std::string_view Revision,
                                                     const IOrvEditorWorld& World,
                                                     const IOrvEnvironment& Environment)
    {
        std::vector<const FOrvSceneProduct*> InMapOrder;
        InMapOrder.reserve(Products.Num());
        std::vector<std::int32_t> Quantities;
        Quantities.reserve(Products.Num());
        std::size_t FieldBytes = 0;
        std::int64_t TotalItems = 0;
        // Counted in map order, the order the level's actors were met in, which keeps the world's
        // look-ups close together.
        for (const FOrvSceneProductPtr& Product : Products)
        {
            InMapOrder.push_back(Product.get());
            Quantities.push_back(FOrvOutlinerTreeBuilder::CountLiveActors(*Product, World));
            TotalItems += Quantities.back();
            FieldBytes += Product->Brand.size() + Product->Name.size() + Product->Collection.size() +
                          Product->Designer.size() + Product->Category.size() + Product->Dimensions.size() +
                          Product->Weight.size() + Product->Website.size() + Product->Description.size();
        }

        std::string Out;
        // The fixed lines, each row's separators, quantity and line end, and a little quoting.
        Out.reserve(512 + ProjectName.size() + Revision.size() + FieldBytes + FieldBytes / 16 +
                    InMapOrder.size() * 24);
        Out.append("ORVESSA - Product Schedule,,,,,,,,,,\n");
        Out.append(OrvCsvSeparatorLine);
        // The product fields arrive as valid UTF-8 (the catalogue answer is read so); these two come from
        // the user.
        OrvCsvAppendHeaderValue(Out, "Project:,", EscapeCSVField(FOrvUtf8::MakeValid(ProjectName)));
        OrvCsvAppendHeaderValue(Out, "Date:,", Environment.GetLocalDate());
        OrvCsvAppendHeaderValue(Out, "Revision:,", EscapeCSVField(FOrvUtf8::MakeValid(Revision)));
        Out.append(OrvCsvSeparatorLine);
        Out.append("Prepared by:,,,,,,,,,,\n"
                   "Name:,,,,,,,,,,\n"
                   "Company:,,,,,,,,,,\n"
                   "Email:,,,,,,,,,,\n");
        Out.append(OrvCsvSeparatorLine);
        Out.append("FURNITURE SCHEDULE,,,,,,,,,,\n");
        Out.append("Qty,Brand,Product,Collection,Designer,Category,Dimensions,Weight,Notes,Product "
                   "URL,Description\n");
        for (const std::size_t Index : OrvOutlinerScheduleOrder(InMapOrder))
        {
            const FOrvSceneProduct* Product = InMapOrder[Index];
            OrvCsvAppendInteger(Out, Quantities[Index]);
            Out.push_back(',');
            for (const std::string* Field :
                 {&Product->Brand, &Product->Name, &Product->Collection, &Product->Designer,
                  &Product->Category, &Product->Dimensions, &Product->Weight})
            {
                AppendEscapedField(Out, *Field);
                Out.push_back(',');
            }
            Out.push_back(','); // Notes, left for the user
            AppendEscapedField(Out, Product->Website);
            Out.push_back(',');
            AppendEscapedField(Out, Product->Description);
            Out.push_back('\n');
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
        OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "FOrvOutlinerCSVExporter: Saved CSV to %s", FilePath.c_str());
        return true;
    }
} // namespace OrvWebBridge
