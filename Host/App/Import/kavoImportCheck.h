#pragma once

struct aiScene;

/// Checks the indices in a scene that Assimp read, before they are used.
///
/// Assimp's readers of binary formats do not check the indices of a damaged file. Assimp's own
/// validation also checks rules that nothing here depends on, and rejects valid files for them.
namespace kavoImportCheck {

/// The deepest allowed nesting of nodes. Assimp recurses into them, also to delete them.
constexpr int maxLevels = 10000;

/// \throws std::runtime_error if nodes are nested more deeply than `maxLevels`, if an index is out
///     of range, or if a mesh lacks its vertices or faces
void check(const aiScene &scene);

} // namespace kavoImportCheck
