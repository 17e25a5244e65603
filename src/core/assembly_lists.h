#pragma once

#include "core/keyed_collection.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zolt {

// What a `.grv` program says of each netlist: its station, pattern and place.
struct CNetlistInfo {
    std::string Name;
    std::string Description;
    std::string Station;
    std::int16_t Pattern = 0;
    bool Ordered = false;
    bool PartOfMain = false;
};

// One position in the order of assembly.
struct CAssemblyRec {
    std::string Name;
    bool Flag = false;
};

using CNetlistInfoList = KeyedCollection<CNetlistInfo>;
using CAssemblyOrderList = KeyedCollection<CAssemblyRec>;

// The document-wide lists of the assembly feature family.
struct AssemblyData {
    std::vector<std::string> FeatureCodeData;
    CAssemblyOrderList AssemblyOrderList;
    CNetlistInfoList NetlistInfoList;

    void Clear() {
        FeatureCodeData.clear();
        AssemblyOrderList.Clear();
        NetlistInfoList.Clear();
    }
    // A renamed netlist keeps its codes, its place and its station.
    void RenameNetlist(const std::string& oldName, const std::string& newName);
    // Drops a deleted netlist from all three lists.
    void RemoveNetlist(const std::string& name);
};

} // namespace zolt
