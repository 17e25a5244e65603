#pragma once

#include "core/table_kinds.h"

// The record types of the program file by name. A table's block is its kind's
// record type; the other blocks are the file's own.
namespace zolt::file::record {

inline constexpr int Fixture = KindOf(table::Fixture).recordType;
inline constexpr int Wire = KindOf(table::Wire).recordType;
inline constexpr int Color = KindOf(table::Color).recordType;
inline constexpr int Groups = KindOf(table::Groups).recordType;
inline constexpr int Message = KindOf(table::Message).recordType;
inline constexpr int Sequence = KindOf(table::Sequence).recordType;
// The message table's two label stores.
inline constexpr int Labels = 81;
inline constexpr int Labels2 = 82;
inline constexpr int SystemParameters = 140;
inline constexpr int Netlists = 150;
inline constexpr int FeatureCodes = 214;
inline constexpr int NetlistInfo = 215;
inline constexpr int AssemblyOrder = 216;
inline constexpr int End = 999;

} // namespace zolt::file::record
