#pragma once

#include "Core/Json/OrvJsonWriter.h"
#include "Core/Ports/IOrvClipboard.h"
#include "Core/Ports/IOrvWebPanel.h"

#include <string>

namespace OrvWebBridge
{
    /**
     * @brief The host's clipboard is the one of the browser showing the catalogue panel: the text goes to
     * the page, which writes it with the Clipboard API (or the older copy command where that is refused).
     * The last text is kept for the console.
     */
    class FOrvHostClipboard : public IOrvClipboard
    {
    public:
        explicit FOrvHostClipboard(IOrvWebPanel& InPanel) : Panel(InPanel) {}

        void ClipboardCopy(std::string_view Text) override
        {
            LastCopied = Text;
            std::string Literal;
            FOrvJsonWriter(Literal, EOrvJsonStyle::Condensed).String(Text);
            Panel.ExecuteJavascript("(function(t){function f(){var a=document.createElement('textarea');"
                                    "a.value=t;document.body.appendChild(a);a.select();"
                                    "document.execCommand('copy');a.remove();}"
                                    "if(navigator.clipboard){navigator.clipboard.writeText(t).catch(f);}"
                                    "else{f();}})(" +
                                    Literal + ");");
        }

        const std::string& GetLastCopied() const { return LastCopied; }

    private:
        IOrvWebPanel& Panel;
        std::string LastCopied;
    };
} // namespace OrvWebBridge
