#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    class FOrvScriptBridge;

    /** @brief The answer to one call from the page: HTTP status and JSON body. */
    struct FOrvBridgeCallAnswer
    {
        int Status = 200;
        std::string Json; ///< {"result": value} (null for functions without one) or {"error": message}
    };

    /**
     * @brief Calls from the page's window.ue.orvbridge into the core's bridge, as the editor's embedded
     * browser makes them: the lower-case function name and the arguments, each checked against the
     * function's parameters before anything runs.
     */
    class FOrvPanelBridgeCalls
    {
    public:
        explicit FOrvPanelBridgeCalls(FOrvScriptBridge& InBridge) : Bridge(InBridge) {}

        /** Runs {"function": name, "args": [...]}; a wrong name, count or type changes nothing. */
        FOrvBridgeCallAnswer Call(std::string_view Body);

        /** The page's function names: the bridge's, lower-cased, in declaration order. */
        static std::vector<std::string> FunctionNames();

    private:
        FOrvScriptBridge& Bridge;
    };
} // namespace OrvWebBridge
