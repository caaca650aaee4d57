#pragma once

// Engine: Runtime/SlateCore/Public/Styling/SlateStyle.h (module SlateCore). The set owns the brushes given
// to Set and deletes them with itself.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateStyleSet

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"

class FSlateStyleSet : public ISlateStyle
{
public:
    explicit FSlateStyleSet(const FName& InStyleSetName);

    virtual const FName& GetStyleSetName() const override;
    virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
                                        const ISlateStyle* RequestingStyle = nullptr) const override;

    /** The folder RootToContentDir resolves against. */
    void SetContentRoot(const FString& InContentRootDir);
    /** ContentRoot / RelativePath + Extension. */
    FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension);

    void Set(const FName PropertyName, FSlateBrush* InBrush);
    void Set(const FName PropertyName, const FSlateFontInfo& InFontInfo);
};
