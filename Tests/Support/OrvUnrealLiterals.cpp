#include "Tests/Support/OrvUnrealLiterals.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <optional>
#include <sstream>

namespace OrvWebBridge
{
    namespace
    {
        struct FToken
        {
            bool bString; ///< a string literal, Text decoded; else an identifier, number or punctuation mark
            std::string Text;
            int Line;
        };

        bool IsWordChar(char C)
        {
            return std::isalnum(static_cast<unsigned char>(C)) || C == '_';
        }

        /** C++ source to tokens: comments dropped, string literals (plain, prefixed, raw) decoded. */
        std::vector<FToken> Tokenize(std::string_view Source)
        {
            std::vector<FToken> Tokens;
            std::size_t Pos = 0;
            int Line = 1;
            const auto Skip = [&](std::size_t End)
            {
                End = std::min(End, Source.size());
                Line += static_cast<int>(std::count(Source.begin() + Pos, Source.begin() + End, '\n'));
                Pos = End;
            };
            while (Pos < Source.size())
            {
                const char C = Source[Pos];
                const std::size_t WordEnd =
                    std::find_if_not(Source.begin() + Pos, Source.end(), IsWordChar) - Source.begin();
                const std::string_view Word = Source.substr(Pos, WordEnd - Pos);
                const bool bQuoteAfterWord = WordEnd < Source.size() && Source[WordEnd] == '"';
                if (std::isspace(static_cast<unsigned char>(C)))
                {
                    Skip(Pos + 1);
                }
                else if (Source.substr(Pos, 2) == "//")
                {
                    Skip(Source.find('\n', Pos));
                }
                else if (Source.substr(Pos, 2) == "/*")
                {
                    Skip(Source.find("*/", Pos) + 2);
                }
                else if (bQuoteAfterWord &&
                         (Word == "R" || Word == "LR" || Word == "uR" || Word == "UR" || Word == "u8R"))
                {
                    // R"delim( ... )delim"
                    const std::size_t Open = Source.find('(', WordEnd);
                    const std::string Close =
                        ")" + std::string(Source.substr(WordEnd + 1, Open - WordEnd - 1)) + "\"";
                    const std::size_t End = std::min(Source.find(Close, Open), Source.size());
                    Tokens.push_back({true, std::string(Source.substr(Open + 1, End - Open - 1)), Line});
                    Skip(End + Close.size());
                }
                else if (C == '"' ||
                         (bQuoteAfterWord && (Word == "L" || Word == "u" || Word == "U" || Word == "u8")))
                {
                    FToken Token{true, "", Line};
                    for (Pos = Source.find('"', Pos) + 1; Pos < Source.size() && Source[Pos] != '"'; ++Pos)
                    {
                        if (Source[Pos] == '\\' && ++Pos < Source.size())
                        {
                            const char Escaped = Source[Pos];
                            Token.Text += Escaped == 'n'   ? '\n'
                                          : Escaped == 't' ? '\t'
                                          : Escaped == 'r' ? '\r'
                                                           : Escaped;
                            continue;
                        }
                        Token.Text += Source[Pos];
                    }
                    ++Pos;
                    Tokens.push_back(std::move(Token));
                }
                else if (C == '\'')
                {
                    // A character literal: only skipped, so that '"' never opens a string.
                    for (++Pos; Pos < Source.size() && Source[Pos] != '\'';
                         Pos += Source[Pos] == '\\' ? 2 : 1)
                    {
                    }
                    Skip(Pos + 1);
                }
                else
                {
                    const std::size_t End = Word.empty() ? Pos + 1 : WordEnd;
                    Tokens.push_back({false, std::string(Source.substr(Pos, End - Pos)), Line});
                    Pos = End;
                }
            }
            return Tokens;
        }

        /** One argument of a macro call: its joined string literals, or its tokens joined without blanks. */
        struct FArgument
        {
            bool bLiteral = true; ///< made of string literals only
            std::string Text;
        };

        /** Walks the tokens of one file and collects its localised literals. */
        class FLiteralReader
        {
        public:
            FLiteralReader(std::string_view InFileName, std::vector<FToken> InTokens,
                           FOrvUnrealLiterals& InOut)
                : FileName(InFileName), Tokens(std::move(InTokens)), Out(InOut)
            {
            }

            void Run()
            {
                for (std::size_t At = 0; At < Tokens.size(); ++At)
                {
                    if (Is(At, "#") && Is(At + 2, "LOCTEXT_NAMESPACE") &&
                        (Is(At + 1, "define") || Is(At + 1, "undef")))
                    {
                        const bool bDefine =
                            Is(At + 1, "define") && At + 3 < Tokens.size() && Tokens[At + 3].bString;
                        Namespace = bDefine ? std::optional(Tokens[At + 3].Text) : std::nullopt;
                    }
                    else if ((Is(At, "LOCTEXT") || Is(At, "NSLOCTEXT") || Is(At, "UI_COMMAND")) &&
                             Is(At + 1, "("))
                    {
                        ReadCall(At);
                    }
                }
            }

        private:
            void ReadCall(std::size_t At)
            {
                const std::string& Macro = Tokens[At].Text;
                const std::string Where = FileName + ":" + std::to_string(Tokens[At].Line);
                const std::vector<FArgument> Args = ReadArguments(At + 2);
                const auto Literals = [&](std::size_t Count)
                {
                    return std::all_of(Args.begin(), Args.begin() + std::min(Count, Args.size()),
                                       [](const FArgument& Arg) { return Arg.bLiteral; });
                };
                const bool bNsLocText = Macro == "NSLOCTEXT";
                const bool bLocText = Macro == "LOCTEXT";
                if (bNsLocText && (Args.size() != 3 || !Literals(3)))
                {
                    return Error(Where, "NSLOCTEXT takes three string literals");
                }
                if (bLocText && (Args.size() != 2 || !Literals(2)))
                {
                    return Error(Where, "LOCTEXT takes two string literals");
                }
                const bool bCommandShape =
                    Args.size() == 5 && !Args[0].bLiteral && Args[1].bLiteral && Args[2].bLiteral;
                if (!bNsLocText && !bLocText && !bCommandShape)
                {
                    return Error(
                        Where, "UI_COMMAND takes a name, a label and a tooltip literal, a type and a chord");
                }
                if (bNsLocText)
                {
                    Out.Texts.push_back({Where, Args[0].Text, Args[1].Text, Args[2].Text});
                    return;
                }
                if (!Namespace)
                {
                    return Error(Where, Macro + " outside a LOCTEXT_NAMESPACE");
                }
                if (bLocText)
                {
                    Out.Texts.push_back({Where, *Namespace, Args[0].Text, Args[1].Text});
                    return;
                }
                Out.Texts.push_back({Where, *Namespace, Args[0].Text, Args[1].Text});
                Out.Texts.push_back({Where, *Namespace, Args[0].Text + "_ToolTip", Args[2].Text});
                Out.Commands.push_back({Where, *Namespace, Args[0].Text, Args[1].Text, Args[2].Text,
                                        Args[3].Text, Args[4].Text});
            }

            /** The arguments of the call whose first argument starts at At, up to its closing parenthesis. */
            std::vector<FArgument> ReadArguments(std::size_t At) const
            {
                std::vector<FArgument> Args(1);
                for (int Depth = 0; At < Tokens.size(); ++At)
                {
                    const FToken& Token = Tokens[At];
                    const bool bPunct = !Token.bString;
                    if (bPunct && Depth == 0 && (Token.Text == ")" || Token.Text == ","))
                    {
                        if (Token.Text == ")")
                        {
                            break;
                        }
                        Args.emplace_back();
                        continue;
                    }
                    Depth += bPunct && (Token.Text == "(") ? 1 : bPunct && (Token.Text == ")") ? -1 : 0;
                    Args.back().bLiteral = Args.back().bLiteral && Token.bString;
                    Args.back().Text += Token.Text;
                }
                return Args;
            }

            bool Is(std::size_t At, std::string_view Text) const
            {
                return At < Tokens.size() && !Tokens[At].bString && Tokens[At].Text == Text;
            }

            void Error(const std::string& Where, const std::string& Message)
            {
                Out.Errors.push_back(Where + ": " + Message);
            }

            std::string FileName;
            std::vector<FToken> Tokens;
            FOrvUnrealLiterals& Out;
            std::optional<std::string> Namespace;
        };
    } // namespace

    FOrvUnrealLiterals FOrvUnrealLiterals::ScanFolder(const std::filesystem::path& SourceRoot)
    {
        std::vector<std::filesystem::path> Files;
        for (const auto& Entry : std::filesystem::recursive_directory_iterator(SourceRoot))
        {
            const std::filesystem::path& Path = Entry.path();
            const bool bSource = Path.extension() == ".h" || Path.extension() == ".cpp";
            const bool bCore =
                std::filesystem::relative(Path, SourceRoot).generic_string().find("Private/Core/") !=
                std::string::npos;
            if (Entry.is_regular_file() && bSource && !bCore)
            {
                Files.push_back(Path);
            }
        }
        std::sort(Files.begin(), Files.end());

        FOrvUnrealLiterals Literals;
        for (const std::filesystem::path& File : Files)
        {
            std::ifstream Stream(File, std::ios::binary);
            std::stringstream Text;
            Text << Stream.rdbuf();
            FLiteralReader(std::filesystem::relative(File, SourceRoot).generic_string(), Tokenize(Text.str()),
                           Literals)
                .Run();
        }
        return Literals;
    }
} // namespace OrvWebBridge
