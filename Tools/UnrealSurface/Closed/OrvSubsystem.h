#pragma once

// ASSUMED. Not the maker's header and not copied from one: a stand-in for the account subsystem of the
// maker's closed core module OrvCore, declaring only what the product description states: the login state,
// signing in and out, the login check, the current user (FOrvTypeUser, as JSON text), the user's library
// record, adding an installed product to the project, removing a product from the library, clearing the
// library, the download manager, and a notification when the library changes.
//
// Unchecked facts (each marked "ASSUMED (n)" in Source/OrvessaWebBridge/Private/Unreal/Closed/ where it is
// relied on):
//   (1) the header's name, "OrvSubsystem.h", and that it declares FOrvTypeUser and the library record too;
//   (2) that UOrvSubsystem is an engine subsystem found through GEngine (the description also calls it an
//       editor subsystem in one place; the outliner's sign-in gate, the user here, uses GEngine);
//   (3) that GetLoginState() answers a bool and is const;
//   (4) the other calls' parameters (FString by const reference) and that they return nothing;
//   (5) GetCurrentUser() answering an FOrvTypeUser whose GetDataAsJsonString() is const;
//   (6) the library record: GetLibrary() answering FOrvLibraryData, with the fields named below, one per key
//       of the page's library JSON;
//   (7) GetDownloadManager() answering a UDownloadQueueManager pointer, null while there is none;
//   (8) OnLibraryUpdated, a native multicast delegate without parameters, as a public member.

#include "DownloadQueueManager.h"
#include "Subsystems/EngineSubsystem.h"

struct FOrvTypeUser
{
    FString GetDataAsJsonString() const;
};

struct FOrvLibraryFileData
{
    FString ProductID;
    FString FileName;
    FString Name;
    FString AssetType;
};

struct FOrvInstalledFileData
{
    FString Url;
    bool bDownloaded;
    FString UnrealPath;
    FString Product;
    FString Name;
};

struct FOrvInstalledProductData
{
    FString ProductName;
    FString BrandName;
    FString ImageUrl;
    float SizeInMB;
    TArray<FOrvInstalledFileData> Files;
};

struct FOrvLibraryData
{
    FString LibraryID;
    TArray<FOrvLibraryFileData> Files;
    TArray<FOrvInstalledProductData> InstalledProducts;
};

DECLARE_MULTICAST_DELEGATE(FOnOrvLibraryUpdated);

class UOrvSubsystem : public UEngineSubsystem
{
    ORV_SURFACE_UCLASS_BODY(UOrvSubsystem, UEngineSubsystem)

    bool GetLoginState() const;
    void SetLoginState(bool bLoggedIn);
    void LoginUser(const FString& Username, const FString& Password);
    void LogoutUser();
    void CheckUserLoginState();
    FOrvTypeUser GetCurrentUser() const;
    const FOrvLibraryData& GetLibrary() const;
    void AddInstalledProductToProject(const FString& ProductID);
    void RemoveProductFromLibrary(const FString& ProductID);
    void ClearLibrary();
    UDownloadQueueManager* GetDownloadManager() const;

    FOnOrvLibraryUpdated OnLibraryUpdated;
};
