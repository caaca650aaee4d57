#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateStyle.h"
#include "Textures/SlateIcon.h"

#include "Core/Module/OrvModuleMenus.h"

/** @brief The plugin's style set "OrvessaWebBridgeStyle": the brushes and fonts of the core's style table. */
class FOrvessaWebBridgeStyle
{
public:
    /** Creates and registers the style set; nothing when it exists already. */
    static void Initialize();

    /** Unregisters the style set, which must be held nowhere else by then. */
    static void Shutdown();

    /** Makes the renderer reload the textures of every brush. */
    static void ReloadTextures();

    static const ISlateStyle& Get();
    static FName GetStyleSetName();

    /** An icon of this style set. */
    static FSlateIcon MakeIcon(const OrvWebBridge::FOrvIconRef& Icon);

private:
    static TSharedRef<FSlateStyleSet> Create();

    static TSharedPtr<FSlateStyleSet> StyleInstance;
};
