#pragma once

#include <string>

// Links that decide where the program writes. All paths are those of the machine, as it spells them.
//
// A link counts when it is ours, root's, or of whoever owns the folder that it lies in: these could have put
// there what it leads to. Nobody else decides where we write.

namespace vigrel {

// The folder that a path lies in, without a separator at its end; empty for a name in the working folder.
std::string FolderOf(const std::string& native);

// The path that a name leads to by links; the path itself when it is no link. Throws cFailure: a link that
// doesn't count (PermissionDenied), or links in a circle.
std::string FollowLinks(std::string native);

// Throws as FollowLinks does when the folder that a path lies in is a link that doesn't count.
void RequireOwnFolder(const std::string& native);

}  // namespace vigrel
