/// \file
/// The reference graph of a job as text for Graphviz.
#pragma once

#include "job_graph.h"

#include <string>

/// A graph in the language of `dot`. ALGO_ stands on top, what it reaches below, by rank; then what is read without a
/// reference, and what nothing leads to. Each kind has its colour, what is not there is red.
/// \param title stands below the picture
std::string GraphText(const JobGraph& graph, const std::string& title);
