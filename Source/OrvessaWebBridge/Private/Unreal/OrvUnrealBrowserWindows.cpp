#include "Unreal/OrvUnrealBrowserWindows.h"

#include "Unreal/OrvUnrealConversions.h"

#include "Framework/Application/SlateApplication.h"
#include "HAL/PlatformProcess.h"
#include "SWebBrowser.h"
#include "Widgets/SWindow.h"

namespace OrvWebBridge
{
    FOrvUnrealBrowserWindows::~FOrvUnrealBrowserWindows()
    {
        while (Popups.Num() > 0)
        {
            ClosePopup(FOrvPopupHandle{Popups.begin()->Handle});
        }
    }

    void FOrvUnrealBrowserWindows::LaunchUrl(std::string_view Url)
    {
        FPlatformProcess::LaunchURL(*FOrvUnrealConversions::ToFString(Url), nullptr, nullptr);
    }

    FOrvPopupHandle
    FOrvUnrealBrowserWindows::OpenPopup(std::string_view Title, std::string_view Url,
                                        std::function<void(const std::string& Url)> OnUrlChanged)
    {
        // Without Slate (a commandlet) there is no window to open; the caller falls back to the system
        // browser.
        if (!FSlateApplication::IsInitialized())
        {
            return {};
        }
        Popups.RemoveAll([](const FOrvPopup& Popup) { return !Popup.Window.IsValid(); });

        const TSharedRef<FOrvPopupListener> Listener = MakeShared<FOrvPopupListener>();
        Listener->OnUrlChanged = std::move(OnUrlChanged);
        // clang-format off
        const TSharedRef<SWindow> Window = SNew(SWindow)
            .Title(FOrvUnrealConversions::ToFText(Title))
            .ClientSize(FVector2D(520.0, 720.0))
            .SupportsMinimize(false)
            .SupportsMaximize(false);
        Window->SetContent(
            SNew(SWebBrowser)
            .InitialURL(FOrvUnrealConversions::ToFString(Url))
            .ShowControls(false)
            .ShowAddressBar(false)
            .ShowErrorMessage(true)
            .ShowInitialThrobber(true)
            .OnUrlChanged_Lambda([Listener](const FText& Shown)
                                 {
                                     // A copy: the listener may close this popup, which empties it, while it runs.
                                     const std::function<void(const std::string&)> Notify = Listener->OnUrlChanged;
                                     if (Notify)
                                     {
                                         Notify(FOrvUnrealConversions::ToUtf8(Shown.ToString()));
                                     }
                                 }));
        // clang-format on
        FSlateApplication::Get().AddWindow(Window);
        const FOrvPopupHandle Handle{++LastHandle};
        Popups.Add(FOrvPopup{Handle.Value, Window, Listener});
        return Handle;
    }

    void FOrvUnrealBrowserWindows::ClosePopup(FOrvPopupHandle Popup)
    {
        for (FOrvPopup& Open : Popups)
        {
            if (Open.Handle != Popup.Value)
            {
                continue;
            }
            Open.Listener->OnUrlChanged = nullptr;
            if (const TSharedPtr<SWindow> Window = Open.Window.Pin())
            {
                Window->RequestDestroyWindow();
            }
        }
        Popups.RemoveAll([&Popup](const FOrvPopup& Open) { return Open.Handle == Popup.Value; });
    }
} // namespace OrvWebBridge
