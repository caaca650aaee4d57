#include "Core/Outliner/OrvOutlinerBatchAnswer.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Common/OrvUtf8.h"
#include "Core/Json/OrvJson.h"

#include <cstdlib>
#include <string_view>

namespace OrvWebBridge
{
    namespace
    {
        // FString::SanitizeFloat(Value, 0): "%f" without trailing zeros, and without the point when none
        // remain.
        std::string OrvBatchAnswerNumberText(const rapidjson::Value& Number)
        {
            if (Number.IsInt64())
            {
                return std::to_string(Number.GetInt64());
            }
            if (Number.IsUint64())
            {
                return std::to_string(Number.GetUint64());
            }
            const double Value = Number.GetDouble() == 0.0 ? 0.0 : Number.GetDouble();
            std::string Text = FOrvStrings::Printf("%f", Value);
            if (Text.find('.') != std::string::npos)
            {
                while (!Text.empty() && Text.back() == '0')
                {
                    Text.pop_back();
                }
                if (!Text.empty() && Text.back() == '.')
                {
                    Text.pop_back();
                }
            }
            return Text;
        }

        // FJsonValue::TryGetString: strings as they are, numbers and booleans as text, anything else fails.
        // Catalogue text goes on to the panel, the log and the CSV file, so it is made valid UTF-8 here.
        bool OrvBatchAnswerTryGetString(const rapidjson::Value* Field, std::string& Out)
        {
            if (!Field)
            {
                return false;
            }
            if (Field->IsString())
            {
                Out = FOrvUtf8::MakeValid(FOrvJson::View(*Field));
                return true;
            }
            if (Field->IsBool())
            {
                Out = Field->GetBool() ? "true" : "false";
                return true;
            }
            if (Field->IsNumber())
            {
                Out = OrvBatchAnswerNumberText(*Field);
                return true;
            }
            return false;
        }

        // GetStringField without the engine's warning: a missing or non-text field reads as "".
        std::string OrvBatchAnswerStringField(const rapidjson::Value& Object, std::string_view Key)
        {
            std::string Text;
            OrvBatchAnswerTryGetString(FOrvJson::FindField(Object, Key), Text);
            return Text;
        }

        // Optional fields: kept only when present, non-empty and not the word null.
        std::string OrvBatchAnswerOptionalField(const rapidjson::Value& Object, std::string_view Key)
        {
            std::string Text;
            if (!OrvBatchAnswerTryGetString(FOrvJson::FindField(Object, Key), Text) ||
                FOrvStrings::EqualsIgnoreCase(Text, "null"))
            {
                return {};
            }
            return Text;
        }

        // GetBoolField: a missing field is false; numbers and texts convert as FJsonValue::TryGetBool does.
        bool OrvBatchAnswerStatus(const rapidjson::Value& Answer)
        {
            const rapidjson::Value* Status = FOrvJson::FindField(Answer, "status");
            if (!Status)
            {
                return false;
            }
            if (Status->IsBool())
            {
                return Status->GetBool();
            }
            if (Status->IsNumber())
            {
                return Status->GetDouble() != 0.0;
            }
            if (Status->IsString())
            {
                const std::string_view Text(Status->GetString(), Status->GetStringLength());
                return FOrvStrings::EqualsIgnoreCase(Text, "true") ||
                       FOrvStrings::EqualsIgnoreCase(Text, "yes") ||
                       FOrvStrings::EqualsIgnoreCase(Text, "on") || std::atoi(std::string(Text).c_str()) != 0;
            }
            return false;
        }

        FOrvProductInfo OrvBatchAnswerReadRecord(const rapidjson::Value& Record)
        {
            FOrvProductInfo Info;
            Info.ProductID = OrvBatchAnswerStringField(Record, "id");
            Info.Name = OrvBatchAnswerStringField(Record, "name");
            Info.Brand = OrvBatchAnswerStringField(Record, "brand");
            Info.Category = OrvBatchAnswerStringField(Record, "category");
            Info.CategoryT2 = OrvBatchAnswerOptionalField(Record, "category_t2");
            Info.Collection = OrvBatchAnswerOptionalField(Record, "collection");
            Info.Designer = OrvBatchAnswerOptionalField(Record, "designer");
            Info.Dimensions = OrvBatchAnswerOptionalField(Record, "dimensions");
            Info.Weight = OrvBatchAnswerOptionalField(Record, "weight");
            Info.Description = OrvBatchAnswerOptionalField(Record, "description");
            Info.Website = OrvBatchAnswerOptionalField(Record, "website");
            return Info;
        }
    } // namespace

    FOrvOutlinerBatchAnswer FOrvOutlinerBatchAnswer::Read(bool bSuccess, const rapidjson::Value* Answer)
    {
        FOrvOutlinerBatchAnswer Result;
        if (!bSuccess || !Answer || !Answer->IsObject())
        {
            Result.Outcome = EOrvBatchAnswerOutcome::RequestFailed;
            return Result;
        }
        if (!OrvBatchAnswerStatus(*Answer))
        {
            Result.Outcome = EOrvBatchAnswerOutcome::StatusFalse;
            return Result;
        }
        Result.Outcome = EOrvBatchAnswerOutcome::Answered;

        // The service keys "products" by id, but only each record's "id" is relied on; a plain array is read
        // too.
        if (const rapidjson::Value* Products = FOrvJson::FindField(*Answer, "products"))
        {
            if (Products->IsObject())
            {
                Result.Products.reserve(Products->MemberCount());
                for (auto It = Products->MemberBegin(); It != Products->MemberEnd(); ++It)
                {
                    if (It->value.IsObject())
                    {
                        Result.Products.push_back(OrvBatchAnswerReadRecord(It->value));
                    }
                }
            }
            else if (Products->IsArray())
            {
                Result.Products.reserve(Products->Size());
                for (const rapidjson::Value& Record : Products->GetArray())
                {
                    if (Record.IsObject())
                    {
                        Result.Products.push_back(OrvBatchAnswerReadRecord(Record));
                    }
                }
            }
        }

        if (const rapidjson::Value* Missing = FOrvJson::FindField(*Answer, "missing");
            Missing && Missing->IsArray())
        {
            for (const rapidjson::Value& Id : Missing->GetArray())
            {
                std::string Text;
                if (OrvBatchAnswerTryGetString(&Id, Text))
                {
                    Result.Missing.push_back(std::move(Text));
                }
            }
        }
        return Result;
    }
} // namespace OrvWebBridge
