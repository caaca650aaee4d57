#pragma once

// Engine: Runtime/SlateCore/Public/Widgets/SWindow.h (module SlateCore). RequestDestroyWindow closes it at
// the end of the frame; a modal window's AddModalWindow call returns then.
// ClientSize is declared with FVector2D; the page shows a UE::Slate::FDeprecateVector2D... parameter type,
// which an FVector2D converts to [unconf], so a call passing one compiles against both. Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SWindow
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/SWindow/FArguments

#include "Math/Vector2D.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

enum class ESizingRule : uint8
{
    FixedSize,
    Autosized,
    UserSized,
};

class SWindow : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SWindow) {}
    SLATE_ATTRIBUTE(FText, Title)
    SLATE_ARGUMENT(ESizingRule, SizingRule)
    SLATE_ARGUMENT(bool, SupportsMinimize)
    SLATE_ARGUMENT(bool, SupportsMaximize)
    SLATE_ARGUMENT(FVector2D, ClientSize)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);

    void SetContent(TSharedRef<SWidget> InContent);
    void RequestDestroyWindow();
};
