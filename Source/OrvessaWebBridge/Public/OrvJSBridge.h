#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "OrvJSBridge.generated.h"

/**
 * The "OrvBridge" object bound into the "Orv Catalog" panel's page, where its functions are
 * window.ue.orvbridge.<name in lower case>(...), each answering a Promise. Every function hands the call to
 * the plugin's script bridge; the object holds no state.
 */
UCLASS()
class ORVESSAWEBBRIDGE_API UOrvJSBridge : public UObject
{
    GENERATED_BODY()

public:
    /** Queues a catalogue asset for download. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void AddAssetDownload(const FString& AssetID, const FString& AssetType);

    /** Adds an installed product to the open project. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void AddProductToProject(const FString& ProductID);

    /** Empties the user's library. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void ClearLibraryData();

    /** The user's library as JSON text; "{}" without the account. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    FString GetLibraryInfo();

    /** The signed-in user as JSON text; "{}" without the account. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    FString GetUserDetails();

    /** Whether the editor is signed in to the catalogue. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    bool IsCoreAuthorized();

    /** Signs the user out and clears the embedded browser's cookies. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void LogoutUser();

    // The header tool takes one string literal per tooltip, however long.
    // clang-format off
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge", meta = (ToolTip = "🌐 Open URL in system's default browser (not CEF)"))
    void OpenExternalURL(const FString& URL);

    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge", meta = (ToolTip = "🔐 Open OAuth URL in CEF popup window (instead of system browser)\nUsed for Google/Epic OAuth to keep login flow within UE editor"))
    void OpenOAuthPopup(const FString& URL);

    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge", meta = (ToolTip = "🔄 Force refresh the web panel - reloads the page\nCan be called after OAuth to ensure fresh auth state"))
    void RefreshPanel();
    // clang-format on

    /** Removes a product from the user's library. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void RemoveProductFromLibrary(const FString& ProductID);

    // clang-format off
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge", meta = (ToolTip = "🔑 The web app passes its session token to the editor for cookie synchronisation\nhttpOnly cookies cannot be read from the embedded browser directly"))
    void SetSessionToken(const FString& Token);
    // clang-format on

    /** Signs in with a user name and password. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void SignIn(const FString& Username, const FString& Password);

    /** Sends the page the "orvbus.test" event. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void TestOrvEventBus();

    /** Asks the catalogue service whether the session is still signed in. */
    UFUNCTION(BlueprintCallable, Category = "ORVESSA|Bridge")
    void TriggerAuthCheck();
};
