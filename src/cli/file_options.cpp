#include "cli/file_options.h"

#include <algorithm>

namespace zolt::cli {

bool ParseFileAndOptions(const std::vector<std::string>& args, std::string& file,
                         const std::vector<ValueOption>& options) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        const auto option = std::find_if(options.begin(), options.end(),
                                         [&](const ValueOption& o) { return o.first == args[i]; });
        if (option != options.end() && i + 1 < args.size())
            *option->second = args[++i];
        else if (file.empty() && !args[i].starts_with("--"))
            file = args[i];
        else
            return false;
    }
    return !file.empty();
}

} // namespace zolt::cli
