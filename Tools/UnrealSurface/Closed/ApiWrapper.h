#pragma once

// ASSUMED. Not the maker's header and not copied from one: a stand-in for the catalogue service client of the
// maker's closed core module OrvCore, declaring only what the product description states: an HTTP API client
// with a cookie jar, reached through GetInstance, with Post (a path, the body as a shared JSON object, and a
// completion taking a success flag and the answer as a shared JSON object), GetCookies and SetCookie.
//
// Unchecked facts (each marked "ASSUMED (n)" in Source/OrvessaWebBridge/Private/Unreal/Closed/
// OrvUnrealCatalogApi.cpp where it is relied on):
//   (1) the header's name, "ApiWrapper.h";
//   (2) the completion's delegate type, here FOnApiResponse;
//   (3) the cookie record, here FOrvCookie with FString Name, Value, Domain and Path, as GetCookies'
//   elements; (4) SetCookie's parameters, here the cookie's name and value.

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "UObject/Object.h"

DECLARE_DELEGATE_TwoParams(FOnApiResponse, bool /*bSuccess*/, TSharedPtr<FJsonObject> /*Answer*/)

    struct FOrvCookie
{
    FString Name;
    FString Value;
    FString Domain;
    FString Path;
};

class UApiWrapper : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UApiWrapper, UObject)

    /** The one client; null before the core module has made it. */
    static UApiWrapper* GetInstance();

    void Post(const FString& Path, TSharedPtr<FJsonObject> Body, FOnApiResponse OnComplete);
    TArray<FOrvCookie> GetCookies() const;
    void SetCookie(const FString& Name, const FString& Value);
};
