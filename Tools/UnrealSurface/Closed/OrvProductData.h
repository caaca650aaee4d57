#pragma once

// ASSUMED. Not the maker's header and not copied from one: a stand-in for the product tag of the maker's
// closed import module OrvImport, declaring only what the product description states. The tag is the
// asset-user-data object that the import module attaches to imported static meshes; it carries the
// catalogue product identifier ProductID and answers IsValid().
//
// Four facts are unchecked (see Source/OrvessaWebBridge/Private/Unreal/Closed/OrvClosedProductTag.cpp,
// where each is marked where it is relied on):
//   (1) the header's name, "OrvProductData.h";
//   (2) that the class is exported (ORVIMPORT_API or MinimalAPI), which StaticClass() needs to link;
//   (3) that ProductID is an FString;
//   (4) that IsValid() is const (the glue calls it on a non-const object, so either way compiles).

#include "Engine/AssetUserData.h"

class UOrvProductData : public UAssetUserData
{
    ORV_SURFACE_UCLASS_BODY(UOrvProductData, UAssetUserData)

    FString ProductID;

    bool IsValid() const;
};
