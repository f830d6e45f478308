#pragma once

/// The one OpenGL type that fields need. Repeating the alias is well-formed, so this header and
/// the system's GL header can be included together, while no client is forced to have the latter.
typedef unsigned int GLenum;
