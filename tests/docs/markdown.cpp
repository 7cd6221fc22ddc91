#include "markdown.h"

#include <algorithm>
#include <fstream>
#include <regex>

Lines ReadLines(const std::string& path)
{
    std::ifstream file(path);
    Lines lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::vector<CodeBlock> CodeBlocks(const Lines& markdown)
{
    std::vector<CodeBlock> blocks;
    bool inside = false;
    for (std::size_t i = 0; i < markdown.size(); ++i)
    {
        const std::string& line = markdown[i];
        if (line.compare(0, 3, "```") == 0)
        {
            inside = !inside;
            if (inside)
                blocks.push_back({line.substr(3), {}, i + 2});
        }
        else if (inside)
            blocks.back().lines.push_back(line);
    }
    return blocks;
}

std::vector<std::string> LocalLinks(const Lines& markdown)
{
    static const std::regex pattern(R"(\]\(([^)\s]+)\))");
    std::vector<std::string> links;
    bool inside = false;
    for (const std::string& line : markdown)
    {
        if (line.compare(0, 3, "```") == 0)
            inside = !inside;
        if (inside)
            continue;
        for (std::sregex_iterator it(line.begin(), line.end(), pattern), end; it != end; ++it)
        {
            const std::string target = (*it)[1];
            if (target.find("://") == std::string::npos && target[0] != '#')
                links.push_back(target.substr(0, target.find('#')));
        }
    }
    return links;
}

namespace
{
std::size_t Indentation(const Lines& lines)
{
    std::size_t common = std::string::npos;
    for (const std::string& line : lines)
        common = std::min(common, line.find_first_not_of(' '));
    return common == std::string::npos ? 0 : common;
}

Lines Dedented(Lines lines)
{
    const std::size_t common = Indentation(lines);
    for (std::string& line : lines)
        line.erase(0, common);
    return lines;
}
} // namespace

bool IsCutFrom(const Lines& block, const Lines& file)
{
    const Lines wanted = Dedented(block);
    for (std::size_t i = 0; i + wanted.size() <= file.size(); ++i)
    {
        const auto start = file.begin() + static_cast<std::ptrdiff_t>(i);
        const auto stop = start + static_cast<std::ptrdiff_t>(wanted.size());
        if (Dedented(Lines(start, stop)) == wanted)
            return true;
    }
    return false;
}
