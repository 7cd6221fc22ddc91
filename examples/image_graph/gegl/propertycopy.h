#pragma once

using GeglNode = struct _GeglNode;

/// Gives \p target the values of \p source, which has the same operation. What only a program can
/// feed (bare pointers) is left out, and so are the paths of files; colours, paths and curves are
/// duplicated, so that the two nodes may be used by different threads.
void CopyProperties(GeglNode* source, GeglNode* target);
