#pragma once

/// The only OpenGL type that fields need. An alias may be repeated, so clients can include the GL
/// header of the system too, but do not need it.
typedef unsigned int GLenum;
