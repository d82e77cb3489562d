// What somebody wants of a database file.
#pragma once

// A file opened to be read is never locked for writing, and may lie on a medium or in a folder that
// cannot be written.
enum class Access { Read, ReadWrite };
