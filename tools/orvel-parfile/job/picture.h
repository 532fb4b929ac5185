/// \file
/// Pictures of graphs, drawn by Graphviz.
#pragma once

#include <filesystem>
#include <string>

/// Writes a graph to a file, whole or not at all.
/// \param text the graph in the language of `dot`
/// \param place ends with .dot for the text itself, or with .svg, .png or .pdf for what `dot` makes of it
/// Throws: UnusableInput for another ending, when the file cannot be written, and when `dot` is not installed or fails.
void WritePicture(const std::string& text, const std::filesystem::path& place);

/// Throws: UnusableInput for a file whose ending WritePicture does not know.
void RequirePictureEnding(const std::filesystem::path& place);
