#pragma once

#include <string>

namespace zolt {

// The progress window of the test compile: a caption and a bar. The desktop
// shows a window; tests and the command line write the captions down.
class CompileProgress {
public:
    virtual ~CompileProgress() = default;
    virtual void Caption(const std::string& text) = 0;
    virtual void SetRange(int minimum, int maximum) = 0;
    virtual void SetPosition(int position) = 0;
    virtual void Hide() = 0;
};

} // namespace zolt
