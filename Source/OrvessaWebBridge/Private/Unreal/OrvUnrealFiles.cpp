#include "Unreal/OrvUnrealFiles.h"

#include "Unreal/OrvUnrealConversions.h"

#include "DesktopPlatformModule.h"
#include "Framework/Application/SlateApplication.h"
#include "IDesktopPlatform.h"
#include "Misc/FileHelper.h"

namespace OrvWebBridge
{
    bool FOrvUnrealFiles::IsDesktopPlatformAvailable() const
    {
        return FDesktopPlatformModule::Get() != nullptr;
    }

    bool FOrvUnrealFiles::SaveFileDialog(const FOrvSaveDialogRequest& Request,
                                         std::vector<std::string>& OutFiles)
    {
        IDesktopPlatform* DesktopPlatform = FDesktopPlatformModule::Get();
        if (!DesktopPlatform)
        {
            return false;
        }
        const void* ParentWindow =
            FSlateApplication::IsInitialized()
                ? FSlateApplication::Get().FindBestParentWindowHandleForDialogs(nullptr)
                : nullptr;
        TArray<FString> Chosen;
        const bool bChosen = DesktopPlatform->SaveFileDialog(
            ParentWindow, FOrvUnrealConversions::ToFString(Request.Title),
            FOrvUnrealConversions::ToFString(Request.DefaultPath),
            FOrvUnrealConversions::ToFString(Request.DefaultFile),
            FOrvUnrealConversions::ToFString(Request.FileTypes), EFileDialogFlags::None, Chosen);
        OutFiles.clear();
        for (const FString& File : Chosen)
        {
            OutFiles.push_back(FOrvUnrealConversions::ToUtf8(File));
        }
        return bChosen;
    }

    bool FOrvUnrealFiles::SaveStringToFile(std::string_view Text, const std::string& FilePath)
    {
        return FFileHelper::SaveStringToFile(FOrvUnrealConversions::ToFString(Text),
                                             *FOrvUnrealConversions::ToFString(FilePath),
                                             FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM);
    }
} // namespace OrvWebBridge
