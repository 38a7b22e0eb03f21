// SPDX-License-Identifier: MIT
#include "surface/undo.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kev {
namespace {

// What is compared and shared as one: few enough that a changed row copies little, enough that a level is
// short.
constexpr int kChunkRows = 16;

using RowChunk = std::vector<ObjectRecord>;

struct KeptColumn {
  std::string Name;
  double Position = 0;
};
using KeptColumns = std::vector<KeptColumn>;

int RowsInChunk(int chunk, int rows) {
  return std::min(kChunkRows, rows - chunk * kChunkRows);
}

bool HoldsSame(const RowChunk& chunk, const ObjectTable& objects, int firstRow) {
  int row = firstRow;
  return std::all_of(chunk.begin(), chunk.end(),
                     [&](const ObjectRecord& kept) { return kept == objects[row++]; });
}

std::shared_ptr<const RowChunk> CopyRows(const ObjectTable& objects, int firstRow, int count) {
  auto chunk = std::make_shared<RowChunk>();
  chunk->reserve(static_cast<std::size_t>(count));
  for (int row = firstRow; row < firstRow + count; ++row)
    chunk->push_back(objects[row]);
  return chunk;
}

bool HoldsSame(const KeptColumns& kept, const ColumnTable& columns) {
  int slot = 1;
  return std::all_of(kept.begin(), kept.end(), [&](const KeptColumn& column) {
    const Column& present = columns[slot++];
    return column.Name == present.Name && column.Position == present.Position;
  });
}

std::shared_ptr<const KeptColumns> CopyColumns(const ColumnTable& columns) {
  auto kept = std::make_shared<KeptColumns>();
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    kept->push_back({columns[slot].Name, columns[slot].Position});
  return kept;
}

}  // namespace

struct UndoLevel {
  int Rows = 0;
  std::vector<std::shared_ptr<const RowChunk>> Chunks;
  std::shared_ptr<const KeptColumns> Columns;
};

UndoStore::Level UndoStore::Snapshot(const Document& document) const {
  auto level = std::make_shared<UndoLevel>();
  const ObjectTable& objects = document.Objects;
  level->Rows = objects.LastScanned();
  for (int chunk = 0; chunk * kChunkRows < level->Rows; ++chunk) {
    const int firstRow = chunk * kChunkRows + 1;
    const int count = RowsInChunk(chunk, level->Rows);
    const auto at = static_cast<std::size_t>(chunk);
    const bool shared = nearest_ && RowsInChunk(chunk, nearest_->Rows) == count &&
                        HoldsSame(*nearest_->Chunks[at], objects, firstRow);
    level->Chunks.push_back(shared ? nearest_->Chunks[at] : CopyRows(objects, firstRow, count));
  }
  const bool sameColumns = nearest_ && HoldsSame(*nearest_->Columns, document.Columns);
  level->Columns = sameColumns ? nearest_->Columns : CopyColumns(document.Columns);
  return level;
}

void UndoStore::Keep(const Document& document) {
  Level level = Snapshot(document);
  if (undoIndex_ == kLastLevel) {
    std::move(levels_.begin() + 1, levels_.end(), levels_.begin());
  } else {
    ++undoIndex_;
  }
  nearest_ = levels_.at(static_cast<std::size_t>(undoIndex_)) = std::move(level);
  undoTop_ = undoIndex_;
}

// Leaves alone what the level shares with `nearest_`, which is the table as it stands, or nothing.
void UndoStore::Restore(Document& document) {
  const Level& level = levels_.at(static_cast<std::size_t>(undoIndex_));
  ObjectTable& objects = document.Objects;
  objects.ObjectCount = std::max(objects.ObjectCount, level->Rows);
  for (std::size_t at = 0; at < level->Chunks.size(); ++at) {
    if (nearest_ && at < nearest_->Chunks.size() && nearest_->Chunks[at] == level->Chunks[at]) continue;
    int row = static_cast<int>(at) * kChunkRows + 1;
    for (const ObjectRecord& kept : *level->Chunks[at])
      objects[row++] = kept;
  }
  // The table has grown since: what it has got then is not part of the level.
  for (int row = level->Rows + 1; row <= objects.LastScanned(); ++row)
    objects[row] = ObjectRecord{};
  objects.RowChanged(1);
  int slot = 1;
  for (const KeptColumn& kept : *level->Columns) {
    Column& column = document.Columns[slot++];
    column.Name = kept.Name;
    column.Position = kept.Position;
  }
  nearest_ = level;
}

void UndoStore::Push(const Document& document) {
  Keep(document);
  DropRedo();
}

bool UndoStore::Undo(Document& document) {
  if (!CanUndo()) return false;
  if (redone_) {
    nearest_ = levels_.at(static_cast<std::size_t>(undoIndex_)) = Snapshot(document);
    undoTop_ = undoIndex_;
  } else {
    Keep(document);
    --undoIndex_;
  }
  Restore(document);
  --undoIndex_;
  redone_ = false;
  return true;
}

bool UndoStore::Redo(Document& document) {
  if (!CanRedo()) return false;
  ++undoIndex_;
  // Painting may have stored what it found out since.
  nearest_ = nullptr;
  Restore(document);
  redone_ = true;
  return true;
}

bool UndoStore::CanRedo() const {
  return undoIndex_ < kLastLevel && levels_.at(static_cast<std::size_t>(undoIndex_) + 1) != nullptr;
}

void UndoStore::DropRedo() {
  std::fill(levels_.begin() + undoIndex_ + 1, levels_.end(), nullptr);
  redone_ = false;
}

void UndoStore::Clear() {
  *this = UndoStore();
}

std::size_t UndoStore::RowsHeld() const {
  std::set<const RowChunk*> chunks;
  for (const Level& level : levels_) {
    if (!level) continue;
    for (const auto& chunk : level->Chunks)
      chunks.insert(chunk.get());
  }
  std::size_t rows = 0;
  for (const RowChunk* chunk : chunks)
    rows += chunk->size();
  return rows;
}

}  // namespace kev
