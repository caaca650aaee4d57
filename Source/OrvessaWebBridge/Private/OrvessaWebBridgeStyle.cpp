#include "OrvessaWebBridgeStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateVectorImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Module/OrvStyleTable.h"
#include "Unreal/OrvUnrealConversions.h"

using namespace OrvWebBridge;

TSharedPtr<FSlateStyleSet> FOrvessaWebBridgeStyle::StyleInstance;

void FOrvessaWebBridgeStyle::Initialize()
{
    if (!StyleInstance.IsValid())
    {
        StyleInstance = Create();
        FSlateStyleRegistry::RegisterSlateStyle(*StyleInstance);
    }
}

void FOrvessaWebBridgeStyle::Shutdown()
{
    if (!StyleInstance.IsValid())
    {
        return;
    }
    FSlateStyleRegistry::UnRegisterSlateStyle(*StyleInstance);
    ensure(StyleInstance.IsUnique());
    StyleInstance.Reset();
}

void FOrvessaWebBridgeStyle::ReloadTextures()
{
    if (FSlateApplication::IsInitialized())
    {
        FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
    }
}

const ISlateStyle& FOrvessaWebBridgeStyle::Get()
{
    return *StyleInstance;
}

FName FOrvessaWebBridgeStyle::GetStyleSetName()
{
    return FName(FOrvStyleTable::StyleSetName);
}

FSlateIcon FOrvessaWebBridgeStyle::MakeIcon(const FOrvIconRef& Icon)
{
    return Icon.SecondStyleName
               ? FSlateIcon(GetStyleSetName(), FName(Icon.StyleName), FName(Icon.SecondStyleName))
               : FSlateIcon(GetStyleSetName(), FName(Icon.StyleName));
}

TSharedRef<FSlateStyleSet> FOrvessaWebBridgeStyle::Create()
{
    TSharedRef<FSlateStyleSet> Style = MakeShared<FSlateStyleSet>(GetStyleSetName());
    // The plugin manager knows this plugin by its descriptor's name; the images live beside the descriptor.
    if (const TSharedPtr<IPlugin> Plugin =
            IPluginManager::Get().FindPlugin(FOrvUnrealConversions::ToFString(FOrvConstants::PluginName)))
    {
        Style->SetContentRoot(Plugin->GetBaseDir() /
                              FOrvUnrealConversions::ToFString(FOrvStyleTable::ContentFolder));
    }
    for (const FOrvBrushEntry& Brush : FOrvStyleTable::Brushes)
    {
        const FString Extension = FOrvUnrealConversions::ToFString(Brush.Extension);
        const FString Path =
            Style->RootToContentDir(FOrvUnrealConversions::ToFString(Brush.File), *Extension);
        const FVector2D Size(Brush.Size, Brush.Size);
        if (Extension == TEXT(".svg"))
        {
            Style->Set(FName(Brush.StyleName), new FSlateVectorImageBrush(Path, Size));
        }
        else
        {
            Style->Set(FName(Brush.StyleName), new FSlateImageBrush(Path, Size));
        }
    }
    for (const FOrvFontEntry& Font : FOrvStyleTable::Fonts)
    {
        Style->Set(FName(Font.StyleName), FCoreStyle::GetDefaultFontStyle(FName(Font.Typeface), Font.Size));
    }
    return Style;
}
