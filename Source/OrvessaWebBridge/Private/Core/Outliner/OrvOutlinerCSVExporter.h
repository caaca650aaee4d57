#pragma once

#include "Core/Outliner/OrvSceneProduct.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Core/Ports/IOrvEnvironment.h"
#include "Core/Ports/IOrvFiles.h"
#include "Core/Ports/IOrvLog.h"

#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Writes the furniture "Product Schedule" spreadsheet of the scanned products. */
    class FOrvOutlinerCSVExporter
    {
    public:
        /**
         * The whole file text, line feeds only: header block, one row per product sorted by brand then name
         * (without case), total and footer. Quantities count the actors that still exist; the date and the
         * plugin version come from the environment.
         */
        static std::string GenerateCSV(const FOrvSceneProductMap& Products, std::string_view ProjectName,
                                       std::string_view Revision, const IOrvEditorWorld& World,
                                       const IOrvEnvironment& Environment);

        /** Asks where to save through the save dialog and writes the text; true when the file was written. */
        static bool SaveCSVToFile(std::string_view CSVContent, std::string_view DefaultFileName,
                                  IOrvFiles& Files, const IOrvEnvironment& Environment, IOrvLog& Log);

        /** A field as a spreadsheet reads it back: quoted, with quotes doubled, when it holds , " or a line
         * end.
         */
        static std::string EscapeCSVField(std::string_view Field);

    private:
        static void AppendEscapedField(std::string& Out, std::string_view Field);
    };
} // namespace OrvWebBridge
