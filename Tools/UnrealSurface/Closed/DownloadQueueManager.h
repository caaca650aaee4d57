#pragma once

// ASSUMED. Not the maker's header and not copied from one: a stand-in for the download queue of the maker's
// closed core module OrvCore, declaring only what the product description states: EnqueueDownload with an
// asset id and an asset type, and notifications when the queue changes (with the queue, whose entries lead
// with two strings: the asset id, then the name shown while it downloads), when the current download
// progresses and when the queue has finished.
//
// Unchecked facts (each marked "ASSUMED (n)" in Source/OrvessaWebBridge/Private/Unreal/Closed/
// OrvUnrealCatalogAccount.cpp where it is relied on):
//   (1) the header's name, "DownloadQueueManager.h";
//   (2) the entry's type and field names, FDownloadQueueEntry with AssetID and DisplayName;
//   (3) the three notifications: native multicast delegates as public members OnQueueUpdated (the queue),
//       OnDownloadProgress (a float) and OnQueueFinished (nothing); dynamic delegates would need UFUNCTION
//       handlers on a UObject instead of the adapter's lambdas;
//   (4) EnqueueDownload's parameters (FString by const reference).

#include "CoreMinimal.h"
#include "UObject/Object.h"

struct FDownloadQueueEntry
{
    FString AssetID;
    FString DisplayName;
};

DECLARE_MULTICAST_DELEGATE_OneParam(FOnDownloadQueueUpdated, const TArray<FDownloadQueueEntry>& /*Queue*/);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnDownloadProgress, float /*Progress*/);
DECLARE_MULTICAST_DELEGATE(FOnDownloadQueueFinished);

class UDownloadQueueManager : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UDownloadQueueManager, UObject)

    void EnqueueDownload(const FString& AssetID, const FString& AssetType);

    FOnDownloadQueueUpdated OnQueueUpdated;
    FOnDownloadProgress OnDownloadProgress;
    FOnDownloadQueueFinished OnQueueFinished;
};
