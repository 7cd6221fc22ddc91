#pragma once

#include <string>
#include <vector>

using Lines = std::vector<std::string>;

/// A fenced block of a Markdown file: its language ("" when none is named) and its lines.
struct CodeBlock
{
    std::string language;
    Lines lines;
    std::size_t firstLine = 0; ///< counted from 1
};

/// The lines of a file; empty when it cannot be read.
Lines ReadLines(const std::string& path);

std::vector<CodeBlock> CodeBlocks(const Lines& markdown);

/// The targets of the links and pictures outside of code blocks, without those to other servers.
std::vector<std::string> LocalLinks(const Lines& markdown);

/// Whether \p block stands in \p file, line after line, apart from a common indentation.
bool IsCutFrom(const Lines& block, const Lines& file);
