#include "Host/Panel/OrvPanelBridgeCalls.h"

#include "Core/Bridge/OrvScriptBridge.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"
#include "Core/Json/OrvJsonWriter.h"

#include <algorithm>
#include <functional>
#include <variant>

namespace OrvWebBridge
{
    namespace
    {
        using FOrvArgs = std::vector<std::string>;
        using FOrvResult = std::variant<std::monostate, std::string, bool>;

        /** @brief One script-callable function: its name, parameter names and how to call it. */
        struct FOrvBridgeFunction
        {
            const char* Name;
            std::vector<const char*> Parameters;
            std::function<FOrvResult(FOrvScriptBridge&, const FOrvArgs&)> Invoke;
        };

        template <typename FCall>
        std::function<FOrvResult(FOrvScriptBridge&, const FOrvArgs&)> NoResult(FCall Call)
        {
            return [Call](FOrvScriptBridge& Bridge, const FOrvArgs& Args)
            {
                Call(Bridge, Args);
                return FOrvResult{};
            };
        }

        const std::vector<FOrvBridgeFunction>& OrvBridgeFunctions()
        {
            using B = FOrvScriptBridge;
            using A = FOrvArgs;
            static const std::vector<FOrvBridgeFunction> Functions = {
                {"AddAssetDownload",
                 {"AssetID", "AssetType"},
                 NoResult([](B& Br, const A& Ar) { Br.AddAssetDownload(Ar[0], Ar[1]); })},
                {"AddProductToProject",
                 {"ProductID"},
                 NoResult([](B& Br, const A& Ar) { Br.AddProductToProject(Ar[0]); })},
                {"ClearLibraryData", {}, NoResult([](B& Br, const A&) { Br.ClearLibraryData(); })},
                {"GetLibraryInfo", {}, [](B& Br, const A&) { return FOrvResult{Br.GetLibraryInfo()}; }},
                {"GetUserDetails", {}, [](B& Br, const A&) { return FOrvResult{Br.GetUserDetails()}; }},
                {"IsCoreAuthorized", {}, [](B& Br, const A&) { return FOrvResult{Br.IsCoreAuthorized()}; }},
                {"LogoutUser", {}, NoResult([](B& Br, const A&) { Br.LogoutUser(); })},
                {"OpenExternalURL", {"URL"}, NoResult([](B& Br, const A& Ar) { Br.OpenExternalURL(Ar[0]); })},
                {"OpenOAuthPopup", {"URL"}, NoResult([](B& Br, const A& Ar) { Br.OpenOAuthPopup(Ar[0]); })},
                {"RefreshPanel", {}, NoResult([](B& Br, const A&) { Br.RefreshPanel(); })},
                {"RemoveProductFromLibrary",
                 {"ProductID"},
                 NoResult([](B& Br, const A& Ar) { Br.RemoveProductFromLibrary(Ar[0]); })},
                {"SetSessionToken",
                 {"Token"},
                 NoResult([](B& Br, const A& Ar) { Br.SetSessionToken(Ar[0]); })},
                {"SignIn",
                 {"Username", "Password"},
                 NoResult([](B& Br, const A& Ar) { Br.SignIn(Ar[0], Ar[1]); })},
                {"TestOrvEventBus", {}, NoResult([](B& Br, const A&) { Br.TestOrvEventBus(); })},
                {"TriggerAuthCheck", {}, NoResult([](B& Br, const A&) { Br.TriggerAuthCheck(); })},
            };
            return Functions;
        }

        const char* JsonTypeName(const rapidjson::Value& Value)
        {
            switch (Value.GetType())
            {
            case rapidjson::kNullType:
                return "null or undefined";
            case rapidjson::kFalseType:
            case rapidjson::kTrueType:
                return "a boolean";
            case rapidjson::kObjectType:
                return "an object";
            case rapidjson::kArrayType:
                return "an array";
            case rapidjson::kStringType:
                return "a string";
            case rapidjson::kNumberType:
                return "a number";
            }
            return "a value";
        }

        FOrvBridgeCallAnswer Refuse(int Status, const std::string& Message)
        {
            FOrvBridgeCallAnswer Answer{Status, {}};
            FOrvJsonWriter Writer(Answer.Json, EOrvJsonStyle::Condensed);
            Writer.BeginObject();
            Writer.String("error", Message);
            Writer.EndObject();
            return Answer;
        }

        std::string Signature(const FOrvBridgeFunction& Function)
        {
            std::string Text = FOrvStrings::ToLower(Function.Name) + "(";
            for (const char* Parameter : Function.Parameters)
            {
                Text += (Text.back() == '(' ? "" : ", ") + std::string(Parameter);
            }
            return Text + ")";
        }
    } // namespace

    std::vector<std::string> FOrvPanelBridgeCalls::FunctionNames()
    {
        std::vector<std::string> Names;
        for (const FOrvBridgeFunction& Function : OrvBridgeFunctions())
        {
            Names.push_back(FOrvStrings::ToLower(Function.Name));
        }
        return Names;
    }

    FOrvBridgeCallAnswer FOrvPanelBridgeCalls::Call(std::string_view Body)
    {
        rapidjson::Document Request;
        std::string Name;
        const bool bParsed = FOrvJson::ParseObject(Body, Request);
        const rapidjson::Value* Args = bParsed ? FOrvJson::TryGetArrayField(Request, "args") : nullptr;
        if (!Args || !FOrvJson::TryGetStringField(Request, "function", Name))
        {
            return Refuse(400, "a bridge call is a JSON object {\"function\": name, \"args\": [arguments]}");
        }
        const auto& Functions = OrvBridgeFunctions();
        const auto Function = std::find_if(Functions.begin(), Functions.end(),
                                           [&](const FOrvBridgeFunction& Each)
                                           { return FOrvStrings::ToLower(Each.Name) == Name; });
        if (Function == Functions.end())
        {
            return Refuse(404, "OrvBridge has no function \"" + Name + "\"");
        }
        const std::size_t Expected = Function->Parameters.size();
        if (Args->Size() != Expected)
        {
            return Refuse(400,
                          FOrvStrings::Printf("%s takes %zu argument%s, got %u", Signature(*Function).c_str(),
                                              Expected, Expected == 1 ? "" : "s", Args->Size()));
        }
        FOrvArgs Strings;
        for (rapidjson::SizeType Index = 0; Index < Args->Size(); ++Index)
        {
            const rapidjson::Value& Arg = (*Args)[Index];
            if (!Arg.IsString())
            {
                return Refuse(400, FOrvStrings::Printf("%s: %s must be a string, got %s",
                                                       Signature(*Function).c_str(),
                                                       Function->Parameters[Index], JsonTypeName(Arg)));
            }
            Strings.emplace_back(FOrvJson::View(Arg));
        }

        const FOrvResult Result = Function->Invoke(Bridge, Strings);
        FOrvBridgeCallAnswer Answer;
        FOrvJsonWriter Writer(Answer.Json, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        if (const auto* Text = std::get_if<std::string>(&Result))
        {
            Writer.String("result", *Text);
        }
        else if (const auto* bValue = std::get_if<bool>(&Result))
        {
            Writer.Bool("result", *bValue);
        }
        else
        {
            Writer.Null("result");
        }
        Writer.EndObject();
        return Answer;
    }
} // namespace OrvWebBridge
