#include "Unreal/Closed/OrvUnrealCatalogApi.h"

#if ORV_WITH_CLOSED_MODULES

#include "Dom/JsonObject.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

#include "Core/Json/OrvJson.h"
#include "Unreal/OrvUnrealConversions.h"

// ASSUMED (1): the core module's header for its API client is called so.
#include "ApiWrapper.h"

namespace OrvWebBridge
{
    namespace
    {
        std::shared_ptr<const rapidjson::Document>
        OrvClosedToCoreAnswer(const TSharedPtr<FJsonObject>& Answer)
        {
            if (!Answer.IsValid())
            {
                return nullptr;
            }
            FString Text;
            const TSharedRef<TJsonWriter<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>> Writer =
                TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
            if (!FJsonSerializer::Serialize(Answer.ToSharedRef(), Writer))
            {
                return nullptr;
            }
            auto Document = std::make_shared<rapidjson::Document>();
            return FOrvJson::ParseObject(FOrvUnrealConversions::ToUtf8(Text), *Document) ? Document : nullptr;
        }
    } // namespace

    IOrvCatalogApi* FOrvUnrealCatalogApi::Find()
    {
        return UApiWrapper::GetInstance() ? this : nullptr;
    }

    void FOrvUnrealCatalogApi::Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete)
    {
        TSharedPtr<FJsonObject> Body;
        const TSharedRef<TJsonReader<TCHAR>> Reader =
            TJsonReaderFactory<TCHAR>::Create(FOrvUnrealConversions::ToFString(JsonBody));
        UApiWrapper* Api = UApiWrapper::GetInstance();
        if (!Api || !FJsonSerializer::Deserialize(Reader, Body) || !Body.IsValid())
        {
            // The port promises a later completion, never one inside the call.
            GameThread.Post([OnComplete = MoveTemp(OnComplete)]() { OnComplete(false, nullptr); });
            return;
        }
        // ASSUMED (2): the completion is an FOnApiResponse (success flag, answer object).
        Api->Post(FOrvUnrealConversions::ToFString(Path), Body,
                  FOnApiResponse::CreateLambda(
                      [OnComplete = MoveTemp(OnComplete)](bool bSuccess, TSharedPtr<FJsonObject> Answer)
                      { OnComplete(bSuccess, OrvClosedToCoreAnswer(Answer)); }));
    }

    std::vector<FOrvCookie> FOrvUnrealCatalogApi::GetCookies() const
    {
        std::vector<FOrvCookie> Cookies;
        if (const UApiWrapper* Api = UApiWrapper::GetInstance())
        {
            // ASSUMED (3): the jar's records are FOrvCookie with Name, Value, Domain and Path.
            for (const ::FOrvCookie& Cookie : Api->GetCookies())
            {
                Cookies.push_back({FOrvUnrealConversions::ToUtf8(Cookie.Name),
                                   FOrvUnrealConversions::ToUtf8(Cookie.Value),
                                   FOrvUnrealConversions::ToUtf8(Cookie.Domain),
                                   FOrvUnrealConversions::ToUtf8(Cookie.Path)});
            }
        }
        return Cookies;
    }

    void FOrvUnrealCatalogApi::SetCookie(const FOrvCookie& Cookie)
    {
        if (UApiWrapper* Api = UApiWrapper::GetInstance())
        {
            // ASSUMED (4): SetCookie takes the cookie's name and value (the jar keeps its own domain).
            Api->SetCookie(FOrvUnrealConversions::ToFString(Cookie.Name),
                           FOrvUnrealConversions::ToFString(Cookie.Value));
        }
    }
} // namespace OrvWebBridge

#endif
