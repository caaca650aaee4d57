#pragma once

// Engine: Runtime/SlateCore/Public/Rendering/SlateRenderer.h (module SlateCore).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/SlateCore/Rendering/FSlateRenderer/ReloadTextureResources?application_version=5.4

class FSlateRenderer
{
public:
    virtual ~FSlateRenderer();
    /** Reloads every texture resource from disk. */
    virtual void ReloadTextureResources();
};
