// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/StructureImport.h"

#include <map>
#include <span>
#include <string>

class QPDF;

namespace folioforge {

// What elements of several structure trees are called, brought under one root. A name that means
// different things in two trees gets a number behind it in the later one, and the elements that use
// it follow.

/// The standard type, such as "/P", that each role stands for.
using RoleMeanings = std::map<std::string, std::string>;

/// What the roles of a tree stand for, at the end of each chain of them.
RoleMeanings meaningsOf(const ImportedStructure &tree);

/// Writes the types and the classes of the only tree into `root` as they are.
void putNames(const ImportedStructure &tree, QPDFObjectHandle root);

/// Merges the types of elements (/RoleMap) into `root`. Each type leads straight to the standard
/// one that it stands for.
void mergeRoles(std::span<ImportedStructure> trees, QPDFObjectHandle root);

/// Merges the classes of attributes (/ClassMap) into `root`.
void mergeClasses(std::span<ImportedStructure> trees, QPDFObjectHandle root);

/// Merges the identifiers of elements (/IDTree) into `root`. Cells of tables that name their
/// headers follow.
void mergeIdentifiers(QPDF &document, std::span<ImportedStructure> trees, QPDFObjectHandle root);

} // namespace folioforge
