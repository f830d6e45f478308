#pragma once

struct aiScene;

/// Checks what Assimp read of a file before anything follows its numbers.
///
/// Readers of binary formats hand on what a damaged file says. Assimp's own validation also looks
/// at rules that nothing here depends on and refuses sound files for them.
namespace kavoImportCheck {

/// Of nodes one inside the other. Assimp calls itself for each, also when it deletes them.
constexpr int maxLevels = 10000;

/// \throws std::runtime_error if there are more levels than that, if a mesh, material or vertex
///     is named that does not exist, or if values that a mesh must have are missing
void check(const aiScene &scene);

} // namespace kavoImportCheck
