/// Resources of a loaded module, and a way to take one of them out.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// An entry of the module's directory of resources: one resource in all of its languages.
struct ResourcePlace
{
    std::string name; ///< such as "dialog 2001"
    IMAGE_RESOURCE_DIRECTORY* directory;
    int index;
};

/// All resources with numbers but the version record.
std::vector<ResourcePlace> resourcesOf(HMODULE module);

/// While it lives, the module has no such resource. One at a time.
class ResourceGap
{
public:
    explicit ResourceGap(const ResourcePlace& place);
    ~ResourceGap();
    ResourceGap(const ResourceGap&) = delete;
    ResourceGap& operator=(const ResourceGap&) = delete;

private:
    void write(const std::vector<char>& bytes);

    IMAGE_RESOURCE_DIRECTORY* m_directory;
    std::vector<char> m_before;
};
