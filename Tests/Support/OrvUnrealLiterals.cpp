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
        enum class ETokenKind
        {
            Identifier,
            String, ///< Text holds the decoded value
            Punct,
            Other,
        };

        struct FToken
        {
            ETokenKind Kind;
            std::string Text;
            int Line;
        };

        bool IsIdentifierChar(char C)
        {
            return std::isalnum(static_cast<unsigned char>(C)) || C == '_';
        }

        /** C++ source to tokens, comments dropped; only string literals are decoded. */
        class FTokenizer
        {
        public:
            explicit FTokenizer(std::string_view InSource) : Source(InSource) {}

            std::vector<FToken> Run()
            {
                while (Pos < Source.size())
                {
                    const char C = Source[Pos];
                    if (C == '\n')
                    {
                        ++Line;
                        ++Pos;
                    }
                    else if (std::isspace(static_cast<unsigned char>(C)))
                    {
                        ++Pos;
                    }
                    else if (Source.substr(Pos, 2) == "//")
                    {
                        Pos = std::min(Source.find('\n', Pos), Source.size());
                    }
                    else if (Source.substr(Pos, 2) == "/*")
                    {
                        const std::size_t End = std::min(Source.find("*/", Pos + 2), Source.size());
                        Line +=
                            static_cast<int>(std::count(Source.begin() + Pos, Source.begin() + End, '\n'));
                        Pos = std::min(End + 2, Source.size());
                    }
                    else if (C == '"')
                    {
                        ReadString();
                    }
                    else if (C == '\'')
                    {
                        SkipCharacterLiteral();
                    }
                    else if (IsIdentifierChar(C))
                    {
                        ReadWord();
                    }
                    else
                    {
                        Tokens.push_back({ETokenKind::Punct, std::string(1, C), Line});
                        ++Pos;
                    }
                }
                return std::move(Tokens);
            }

        private:
            void ReadWord()
            {
                const std::size_t Start = Pos;
                while (Pos < Source.size() && IsIdentifierChar(Source[Pos]))
                {
                    ++Pos;
                }
                const std::string_view Word = Source.substr(Start, Pos - Start);
                const bool bQuoteFollows = Pos < Source.size() && Source[Pos] == '"';
                if (bQuoteFollows &&
                    (Word == "R" || Word == "LR" || Word == "uR" || Word == "UR" || Word == "u8R"))
                {
                    ReadRawString();
                }
                else if (bQuoteFollows && (Word == "L" || Word == "u" || Word == "U" || Word == "u8"))
                {
                    ReadString();
                }
                else
                {
                    const bool bNumber = std::isdigit(static_cast<unsigned char>(Word[0])) != 0;
                    Tokens.push_back(
                        {bNumber ? ETokenKind::Other : ETokenKind::Identifier, std::string(Word), Line});
                }
            }

            void ReadString()
            {
                const int StartLine = Line;
                std::string Value;
                ++Pos; // opening quote
                while (Pos < Source.size() && Source[Pos] != '"' && Source[Pos] != '\n')
                {
                    char C = Source[Pos++];
                    if (C == '\\' && Pos < Source.size())
                    {
                        C = DecodeEscape();
                    }
                    Value.push_back(C);
                }
                ++Pos; // closing quote
                Tokens.push_back({ETokenKind::String, std::move(Value), StartLine});
            }

            char DecodeEscape()
            {
                const char Escaped = Source[Pos++];
                switch (Escaped)
                {
                case 'n':
                    return '\n';
                case 't':
                    return '\t';
                case 'r':
                    return '\r';
                case '0':
                    return '\0';
                case 'x':
                {
                    int Value = 0;
                    while (Pos < Source.size() && std::isxdigit(static_cast<unsigned char>(Source[Pos])))
                    {
                        Value = Value * 16 + std::stoi(std::string(1, Source[Pos++]), nullptr, 16);
                    }
                    return static_cast<char>(Value);
                }
                default: // \\ \" \' \?
                    return Escaped;
                }
            }

            void ReadRawString()
            {
                const int StartLine = Line;
                const std::size_t OpenParen = Source.find('(', Pos);
                const std::string Closing =
                    ")" + std::string(Source.substr(Pos + 1, OpenParen - Pos - 1)) + "\"";
                const std::size_t End = std::min(Source.find(Closing, OpenParen), Source.size());
                std::string Value(Source.substr(OpenParen + 1, End - OpenParen - 1));
                Line += static_cast<int>(std::count(Value.begin(), Value.end(), '\n'));
                Pos = std::min(End + Closing.size(), Source.size());
                Tokens.push_back({ETokenKind::String, std::move(Value), StartLine});
            }

            void SkipCharacterLiteral()
            {
                ++Pos;
                while (Pos < Source.size() && Source[Pos] != '\'' && Source[Pos] != '\n')
                {
                    Pos += Source[Pos] == '\\' ? 2 : 1;
                }
                ++Pos;
                Tokens.push_back({ETokenKind::Other, "'", Line});
            }

            std::string_view Source;
            std::size_t Pos = 0;
            int Line = 1;
            std::vector<FToken> Tokens;
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
                for (Pos = 0; Pos < Tokens.size(); ++Pos)
                {
                    if (IsPunct(Pos, "#") && IsWord(Pos + 1, "define") &&
                        IsWord(Pos + 2, "LOCTEXT_NAMESPACE"))
                    {
                        Pos += 3;
                        Namespace = ReadStrings();
                        if (!Namespace)
                        {
                            Error("LOCTEXT_NAMESPACE is not defined as a string literal");
                        }
                    }
                    else if (IsPunct(Pos, "#") && IsWord(Pos + 1, "undef") &&
                             IsWord(Pos + 2, "LOCTEXT_NAMESPACE"))
                    {
                        Namespace.reset();
                    }
                    else if (IsWord(Pos, "LOCTEXT") && IsPunct(Pos + 1, "("))
                    {
                        ReadLocText();
                    }
                    else if (IsWord(Pos, "NSLOCTEXT") && IsPunct(Pos + 1, "("))
                    {
                        ReadNsLocText();
                    }
                    else if (IsWord(Pos, "UI_COMMAND") && IsPunct(Pos + 1, "("))
                    {
                        ReadUiCommand();
                    }
                }
            }

        private:
            void ReadLocText()
            {
                const std::size_t Start = Pos;
                Pos += 2;
                std::optional<std::string> Key = ReadStrings();
                std::optional<std::string> Text = Key && Skip(",") ? ReadStrings() : std::nullopt;
                if (!Text || !Skip(")"))
                {
                    return Error("LOCTEXT takes two string literals", Start);
                }
                if (!Namespace)
                {
                    return Error("LOCTEXT outside a LOCTEXT_NAMESPACE", Start);
                }
                Out.Texts.push_back({Where(Start), *Namespace, *Key, *Text});
            }

            void ReadNsLocText()
            {
                const std::size_t Start = Pos;
                Pos += 2;
                std::optional<std::string> TextNamespace = ReadStrings();
                std::optional<std::string> Key = TextNamespace && Skip(",") ? ReadStrings() : std::nullopt;
                std::optional<std::string> Text = Key && Skip(",") ? ReadStrings() : std::nullopt;
                if (!Text || !Skip(")"))
                {
                    return Error("NSLOCTEXT takes three string literals", Start);
                }
                Out.Texts.push_back({Where(Start), *TextNamespace, *Key, *Text});
            }

            void ReadUiCommand()
            {
                const std::size_t Start = Pos;
                Pos += 2;
                FOrvCommandLiteral Command;
                Command.Where = Where(Start);
                if (Pos >= Tokens.size() || Tokens[Pos].Kind != ETokenKind::Identifier)
                {
                    return Error("UI_COMMAND's first argument is not a command name", Start);
                }
                Command.Name = Tokens[Pos++].Text;
                std::optional<std::string> Label = Skip(",") ? ReadStrings() : std::nullopt;
                std::optional<std::string> Tooltip = Label && Skip(",") ? ReadStrings() : std::nullopt;
                if (!Tooltip || !Skip(","))
                {
                    return Error("UI_COMMAND's label and tooltip are not string literals", Start);
                }
                if (!Namespace)
                {
                    return Error("UI_COMMAND outside a LOCTEXT_NAMESPACE", Start);
                }
                Command.Namespace = *Namespace;
                Command.Label = *Label;
                Command.Tooltip = *Tooltip;
                Command.ActionType = ReadExpression();
                Command.Chord = Skip(",") ? ReadExpression() : std::string();
                if (!Skip(")"))
                {
                    return Error("UI_COMMAND has more arguments than the five read here", Start);
                }
                Out.Texts.push_back({Command.Where, Command.Namespace, Command.Name, Command.Label});
                Out.Texts.push_back(
                    {Command.Where, Command.Namespace, Command.Name + "_ToolTip", Command.Tooltip});
                Out.Commands.push_back(std::move(Command));
            }

            /** Adjacent string literals joined, as the compiler joins them; nothing when there is none. */
            std::optional<std::string> ReadStrings()
            {
                if (Pos >= Tokens.size() || Tokens[Pos].Kind != ETokenKind::String)
                {
                    return std::nullopt;
                }
                std::string Joined;
                while (Pos < Tokens.size() && Tokens[Pos].Kind == ETokenKind::String)
                {
                    Joined += Tokens[Pos++].Text;
                }
                return Joined;
            }

            /** Tokens up to the next "," or ")" outside brackets, joined without blanks. */
            std::string ReadExpression()
            {
                std::string Text;
                int Depth = 0;
                for (; Pos < Tokens.size(); ++Pos)
                {
                    const std::string& Token = Tokens[Pos].Text;
                    if (Depth == 0 && (Token == "," || Token == ")") && Tokens[Pos].Kind == ETokenKind::Punct)
                    {
                        break;
                    }
                    Depth += (Token == "(") - (Token == ")");
                    Text += Token;
                }
                return Text;
            }

            bool Skip(std::string_view Punct)
            {
                if (!IsPunct(Pos, Punct))
                {
                    return false;
                }
                ++Pos;
                return true;
            }
            bool IsPunct(std::size_t At, std::string_view Text) const
            {
                return At < Tokens.size() && Tokens[At].Kind == ETokenKind::Punct && Tokens[At].Text == Text;
            }
            bool IsWord(std::size_t At, std::string_view Text) const
            {
                return At < Tokens.size() && Tokens[At].Kind == ETokenKind::Identifier &&
                       Tokens[At].Text == Text;
            }
            std::string Where(std::size_t At) const
            {
                return std::string(FileName) + ":" + std::to_string(At < Tokens.size() ? Tokens[At].Line : 0);
            }
            void Error(std::string_view Message, std::size_t At)
            {
                Out.Errors.push_back(Where(At) + ": " + std::string(Message));
            }
            void Error(std::string_view Message) { Error(Message, Pos); }

            std::string_view FileName;
            std::vector<FToken> Tokens;
            FOrvUnrealLiterals& Out;
            std::size_t Pos = 0;
            std::optional<std::string> Namespace;
        };
    } // namespace

    FOrvUnrealLiterals FOrvUnrealLiterals::ScanFolder(const std::filesystem::path& SourceRoot)
    {
        std::vector<std::filesystem::path> Files;
        for (const auto& Entry : std::filesystem::recursive_directory_iterator(SourceRoot))
        {
            const std::filesystem::path& Path = Entry.path();
            const std::string Relative = std::filesystem::relative(Path, SourceRoot).generic_string();
            const bool bSource = Path.extension() == ".h" || Path.extension() == ".cpp";
            if (Entry.is_regular_file() && bSource && Relative.find("Private/Core/") == std::string::npos)
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
            Literals.ScanText(std::filesystem::relative(File, SourceRoot).generic_string(), Text.str());
        }
        return Literals;
    }

    void FOrvUnrealLiterals::ScanText(std::string_view FileName, std::string_view Source)
    {
        FLiteralReader(FileName, FTokenizer(Source).Run(), *this).Run();
    }
} // namespace OrvWebBridge
