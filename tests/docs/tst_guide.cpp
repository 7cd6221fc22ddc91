// What the guide shows is what is compiled and run elsewhere, and its links lead somewhere.
#include "markdown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace
{
/// The tree of the project, or the folder that the guide was installed to.
const fs::path root =
    std::getenv("INSPECTOR_GUIDE") ? std::getenv("INSPECTOR_GUIDE") : INSPECTOR_SOURCES;

std::vector<fs::path> Pages()
{
    std::vector<fs::path> pages;
    for (const fs::path& folder : {root, root / "docs"})
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".md")
                pages.push_back(entry.path());
    std::sort(pages.begin(), pages.end());
    return pages;
}

/// Files that the tests build, and build scripts that they run.
std::vector<Lines> BuiltFiles(const std::string& language)
{
    std::vector<Lines> files;
    for (const fs::path& folder :
         {root / "examples", root / "tests/gallery", root / "tests/package"})
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        {
            const fs::path& path = entry.path();
            const bool script = path.filename() == "CMakeLists.txt";
            const bool source = path.extension() == ".cpp" || path.extension() == ".h";
            if (language == "cmake" ? script : source)
                files.push_back(ReadLines(path.string()));
        }
    return files;
}

std::string Text(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}
} // namespace

TEST(Guide, HasPages)
{
    EXPECT_GE(Pages().size(), 8u);
}

TEST(Guide, CutsEveryCodeBlockFromAFileThatIsBuilt)
{
    std::size_t checked = 0;
    for (const std::string language : {"cpp", "cmake"})
    {
        const std::vector<Lines> files = BuiltFiles(language);
        ASSERT_FALSE(files.empty());
        for (const fs::path& page : Pages())
            for (const CodeBlock& block : CodeBlocks(ReadLines(page.string())))
            {
                if (block.language != language)
                    continue;
                ++checked;
                EXPECT_TRUE(std::any_of(files.begin(), files.end(),
                                        [&](const Lines& file)
                                        { return IsCutFrom(block.lines, file); }))
                    << page << ":" << block.firstLine << " is in no file:\n"
                    << Text(block.lines);
            }
    }
    EXPECT_GE(checked, 10u);
}

TEST(Guide, GivesTheWholeOfTheFirstProgramStepByStep)
{
    Lines shown;
    for (const CodeBlock& block :
         CodeBlocks(ReadLines((root / "docs/getting-started.md").string())))
        if (block.language == "cpp")
            shown.insert(shown.end(), block.lines.begin(), block.lines.end());
    Lines program = ReadLines((root / "examples/01-three-rows.cpp").string());
    for (Lines* lines : {&shown, &program})
        lines->erase(std::remove(lines->begin(), lines->end(), ""), lines->end());
    EXPECT_EQ(Text(shown), Text(program));
}

TEST(Guide, LeadsToEveryExampleAndEachIsShortAndStartedByTheTests)
{
    const std::string guide = Text(ReadLines((root / "docs/getting-started.md").string()));
    const std::string started = Text(ReadLines((root / "examples/numbered.cmake").string()));
    std::size_t examples = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(root / "examples"))
    {
        if (entry.path().extension() != ".cpp")
            continue;
        SCOPED_TRACE(entry.path().string());
        ++examples;
        EXPECT_LT(ReadLines(entry.path().string()).size(), 100u);
        EXPECT_NE(started.find(entry.path().stem().string()), std::string::npos);
        EXPECT_NE(guide.find(entry.path().filename().string()), std::string::npos);
    }
    EXPECT_GE(examples, 16u);
}

TEST(Guide, NamesTheLanguageOfEveryBlockOfCode)
{
    for (const fs::path& page : Pages())
        for (const CodeBlock& block : CodeBlocks(ReadLines(page.string())))
            if (block.language.empty())
            {
                EXPECT_EQ(Text(block.lines).find("#include"), std::string::npos)
                    << page << ":" << block.firstLine;
            }
}

TEST(Guide, ShowsEveryPictureOfTheGallery)
{
    std::string shown;
    for (const fs::path& page : Pages())
        for (const std::string& link : LocalLinks(ReadLines(page.string())))
            shown += fs::weakly_canonical(page.parent_path() / link).string() + "\n";
    std::size_t pictures = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(root / "docs/images/gallery"))
    {
        ++pictures;
        EXPECT_NE(shown.find(fs::canonical(entry.path()).string() + "\n"), std::string::npos)
            << entry.path();
    }
    EXPECT_GE(pictures, 10u);
}

TEST(Guide, LinksOnlyToWhatExists)
{
    for (const fs::path& page : Pages())
        for (const std::string& link : LocalLinks(ReadLines(page.string())))
            EXPECT_TRUE(fs::exists(page.parent_path() / link)) << page << " links to " << link;
}

TEST(Markdown, FindsBlocksAndTheirLanguages)
{
    const auto blocks = CodeBlocks({"text", "```cpp", "int a;", "```", "```", "drawing", "```"});
    ASSERT_EQ(blocks.size(), 2u);
    EXPECT_EQ(blocks[0].language, "cpp");
    EXPECT_EQ(blocks[0].lines, Lines{"int a;"});
    EXPECT_EQ(blocks[0].firstLine, 3u);
    EXPECT_EQ(blocks[1].language, "");
}

TEST(Markdown, FindsLinksOutsideOfBlocks)
{
    const Lines page = {"[a](a.md#part) and ![b](images/b.png)", "```", "[c](c.md)", "```",
                        "[d](https://d.example/) [e](#here)"};
    EXPECT_EQ(LocalLinks(page), (Lines{"a.md", "images/b.png"}));
}

TEST(Markdown, FindsABlockInAFileWhateverItsIndentation)
{
    const Lines file = {"{", "    a();", "    if (b)", "        c();", "}"};
    EXPECT_TRUE(IsCutFrom({"a();", "if (b)", "    c();"}, file));
    EXPECT_TRUE(IsCutFrom({"    if (b)", "        c();"}, file));
    EXPECT_FALSE(IsCutFrom({"if (b)", "c();"}, file));
    EXPECT_FALSE(IsCutFrom({"a();", "c();"}, file));
}
