#pragma once

#include "core/assembly_lists.h"
#include "core/devices.h"
#include "core/keyed_collection.h"
#include "core/netlist.h"
#include "core/parameters.h"

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace zolt {

// What a program file holds: the netlists with their tables, the device and
// macro lists, the assembly family and the file's own settings, plus what the
// last compile left behind.
struct Project {
    bool NeedsCompile = false;
    // Date and time of the last compile, as an OLE date (days since 30 December 1899).
    double CompiledDate = 0.0;
    CNetList* MainNetlist = nullptr;
    CNetList* ActiveNetlist = nullptr;
    KeyedCollection<std::unique_ptr<CNetList>> NetlistCollection;
    KeyedCollection<CComponent> DeviceList;
    KeyedCollection<CMacro> MacroList;
    AssemblyData Assembly;
    // The File group of the parameters; the program's parameter store reads
    // and writes these of the open project.
    KeyedCollection<CParameter> FileParameters = DefaultFileParameters();
    // The feature code lines ticked in the last test compile; kept for the
    // program's run, never stored.
    std::vector<std::string> SelectedFeatureCodes;
    // Names the last compile knew as labels; a new netlist may not take one.
    std::set<std::string> CompileLabels;

    CNetList* FindNetlist(const std::string& name) const;
    CNetList* NetlistByIndex(std::int32_t index) const;
    // The side name of a device; empty when the device is unknown.
    std::string GetComponentSide(const std::string& name, int side) const;
};

} // namespace zolt
