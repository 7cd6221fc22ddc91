#pragma once

#include <string>
#include <vector>

/// The life of the image library in this process: create one before anything else of this folder
/// is used, and keep it until everything that came from this folder is gone.
class CGeglSession
{
public:
    CGeglSession();
    ~CGeglSession();
    CGeglSession(const CGeglSession&) = delete;
    CGeglSession& operator=(const CGeglSession&) = delete;

    /// The warnings of the library in the calling thread since the last call, without those that a
    /// user cannot act upon.
    static std::vector<std::string> TakeMessages();
};
