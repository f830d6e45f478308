#pragma once

struct aiScene;

/// Checks what Assimp read of a file before anything follows its numbers.
///
/// Readers of binary formats hand on what a damaged file says. Assimp's own validation also looks
/// at rules that nothing here depends on and refuses sound files for them.
class kavoImportCheck
{
public:
    /// \throws std::runtime_error if a mesh, material or vertex is named that does not exist, or
    ///     if values that a mesh must have are missing
    static void check(const aiScene &scene);
};
