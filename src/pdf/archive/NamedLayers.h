// SPDX-License-Identifier: Apache-2.0

#pragma once

class QPDF;

namespace folioforge {

/// Gives the layers of `document` what archives ask for: their settings have a name, and their list
/// names all of them (ISO 19005-2, 6.9).
void nameLayers(QPDF &document);

} // namespace folioforge
