#pragma once

// Engine: Editor/ContentBrowser/Public/ContentBrowserModule.h (module ContentBrowser).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Editor/ContentBrowser/FContentBrowserModule/GetOnAssetSelectionChanged?application_version=5.3

#include "IContentBrowserSingleton.h"
#include "Modules/ModuleInterface.h"

class FContentBrowserModule : public IModuleInterface
{
public:
    /** The singleton that drives the browsers. */
    virtual IContentBrowserSingleton& Get() const;
};
