#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief One localised text literal of an Unreal source: LOCTEXT, NSLOCTEXT or half of a UI_COMMAND. */
    struct FOrvLocLiteral
    {
        std::string Where; ///< "File:Line"
        std::string Namespace;
        std::string Key;
        std::string Text;
    };

    /** @brief One UI_COMMAND of an Unreal source, with its action type and chord as written, blanks removed.
     */
    struct FOrvCommandLiteral
    {
        std::string Where;
        std::string Namespace;
        std::string Name;
        std::string Label;
        std::string Tooltip;
        std::string ActionType; ///< "EUserInterfaceActionType::Button"
        std::string Chord;      ///< "FInputChord(EModifierKey::Alt,EKeys::R)"
    };

    /**
     * @brief The localised literals of Unreal sources, read as the engine's localisation gatherer reads them:
     * LOCTEXT under the LOCTEXT_NAMESPACE defined above it, NSLOCTEXT with its own namespace, UI_COMMAND as
     * a label keyed by the command's name and a tooltip keyed by the name and "_ToolTip". Comments are
     * skipped, adjacent literals joined and escapes decoded.
     */
    struct FOrvUnrealLiterals
    {
        std::vector<FOrvLocLiteral> Texts; ///< UI_COMMAND's two texts included
        std::vector<FOrvCommandLiteral> Commands;
        std::vector<std::string> Errors; ///< what the gatherer could not read, with its place

        /** Reads every .h and .cpp under SourceRoot except the engine-free core (Private/Core). */
        static FOrvUnrealLiterals ScanFolder(const std::filesystem::path& SourceRoot);
    };
} // namespace OrvWebBridge
