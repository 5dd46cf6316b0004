// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace folioforge::test {

/// A page tree of `depth` nodes, each with a page and the next node.
QByteArray deepPageTree(qint64 depth);
/// Bookmarks, fields and names nested `depth` deep, one in the other.
QByteArray deepTrees(qint64 depth);
/// A page with a field whose name and font every other such document has too.
QByteArray formOfOneField();
/// One page that refers to each of `count` numbers in object streams.
QByteArray manyObjects(qint64 count);
/// A cross-reference stream of `count` free entries beside a document of one page.
QByteArray manyEntries(qint64 count);
/// Documents of one page whose parts lead in circles, by name.
QList<std::pair<const char *, QByteArray>> circles();
/// A name tree of `depth` nodes, each of which stands twice in the one above: 2^depth ways down.
QByteArray doublingNames(qint64 depth);
/// A page with `count` files, fields, destinations, roles and output intents that all have one name
/// of a megabyte.
QByteArray sharedNames(qint64 count);
/// Two pages with `count` fields that share one list of so many kids, and so many bookmarks whose
/// first leads into one chain of them all.
QByteArray sharedKids(qint64 count);
/// A page with `count` annotations that is in the page tree `count` times.
QByteArray repeatedPage(qint64 count);

/// A page whose content unfolds to `count` bytes, through Flate and once more through Flate.
QByteArray unfoldingContent(qint64 count);
/// A page with an image whose samples do.
QByteArray unfoldingImage(qint64 count);
/// A page that stands in an object stream that does.
QByteArray unfoldingObjects(qint64 count);

} // namespace folioforge::test
