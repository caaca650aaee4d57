#pragma once

#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief The "Orv Catalog" tab's embedded browser (SWebBrowser). It exists only while the tab is open;
     * every call but IsOpen does nothing while it is closed. Game thread.
     */
    class IOrvWebPanel
    {
    public:
        virtual ~IOrvWebPanel() = default;

        /** Whether the panel's browser exists (the tab is open). */
        virtual bool IsOpen() const = 0;

        /** Loads Url in the panel (SWebBrowser::LoadURL). */
        virtual void LoadUrl(std::string_view Url) = 0;

        /** Runs Script in the panel's page (SWebBrowser::ExecuteJavascript). */
        virtual void ExecuteJavascript(std::string_view Script) = 0;

        /** The URL the panel shows; empty when closed or when nothing has loaded yet. */
        virtual std::string GetUrl() const = 0;
    };
} // namespace OrvWebBridge
