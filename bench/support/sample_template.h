// SPDX-License-Identifier: MIT
// Templates made for measuring: the mixture of an ordinary report, at any size that the table holds.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "document/document.h"

namespace kev::bench {

// The sizes that are measured; the last is a full table.
inline constexpr int kSizes[] = {250, 500, 2001};

// A template that takes exactly `rows` rows of the table, bars and end bars included. The number of
// subsections grows with the rows. The same rows always give the same bytes.
std::string SampleTemplate(int rows);
// The same with so much room between its bodies that the page is 800,000 twips tall.
std::string TallTemplate(int rows);

// What a template holds; ends the program when it is refused, because then nothing measured would mean
// anything.
Document ReadOrAbort(std::string_view bytes);
// The same behind the geometry chain, as a document stands after it was opened.
Document OpenedSample(int rows);

// Time and bytes for each row, beside the time for each run.
void CountRows(benchmark::State& state, int rows);

// Runs a benchmark at each size.
inline void AtAllSizes(benchmark::internal::Benchmark* benchmark) {
  for (const int rows : kSizes)
    benchmark->Arg(rows);
}

}  // namespace kev::bench
