#include "convert/compress/ContentDraws.h"

#include "convert/compress/BoundedText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include <qpdf/Pl_QPDFTokenizer.hh>
#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

constexpr std::size_t kMostSizes = 64;
constexpr std::size_t kDeepestNesting = 2000;
constexpr std::size_t kDeepestForms = 32;
constexpr std::size_t kMostContentBytes = 64 << 20;

bool isImage(QPDFObjectHandle object) {
    return object.isStream() && object.getDict().getKey("/Subtype").isNameAndEquals("/Image");
}

QPDFObjectHandle entry(QPDFObjectHandle resources, const char *kind, const std::string &name) {
    if (!resources.isDictionary()) {
        return QPDFObjectHandle::newNull();
    }
    QPDFObjectHandle all = resources.getKey(kind);
    return all.isDictionary() ? all.getKey(name) : QPDFObjectHandle::newNull();
}

/// Whether content under these resources can draw an image at all; text alone needs no reading.
bool canDrawImages(QPDFObjectHandle resources) {
    if (!resources.isDictionary()) {
        return false;
    }
    for (const char *kind : {"/XObject", "/Pattern", "/ExtGState"}) {
        QPDFObjectHandle all = resources.getKey(kind);
        if (!all.isDictionary()) {
            continue;
        }
        for (auto &[name, value] : all.ditems()) {
            const bool state = std::string_view(kind) == "/ExtGState";
            if (state ? value.isDictionary() && value.getKey("/SMask").isDictionary()
                      : value.isStream()) {
                return true;
            }
        }
    }
    return false;
}

/// Appends the text of a form or of a page's contents, and says whether all of it could be read.
bool readText(QPDFObjectHandle content, std::string &text) {
    BoundedText target(text, kMostContentBytes);
    const QPDF *document = content.getOwningQPDF();
    const std::size_t warnings = document ? document->numWarnings() : 0;
    try {
        const auto streams = content.isStream() ? std::vector{content} : content.getPageContents();
        for (QPDFObjectHandle stream : streams) {
            bool filtered = false;
            if (!stream.pipeStreamData(&target, &filtered, 0, qpdf_dl_specialized)) {
                return false;
            }
            target.writeCStr("\n");
        }
    } catch (const std::exception &) {
        return false;
    }
    // Compressed data that ends too early counts for no failure, it only warns.
    return !document || document->numWarnings() == warnings;
}

} // namespace

Linear Linear::then(const Linear &next) const {
    const Linear product{a * next.a + b * next.c, a * next.b + b * next.d, c * next.a + d * next.c,
                         c * next.b + d * next.d};
    const double sum = product.a + product.b + product.c + product.d;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    return std::isnan(sum) ? Linear{kInfinity, 0, 0, kInfinity} : product;
}

Linear linearOf(QPDFObjectHandle array) {
    Linear linear;
    if (!array.isArray() || array.getArrayNItems() != 6) {
        return linear;
    }
    double *const parts[] = {&linear.a, &linear.b, &linear.c, &linear.d};
    for (int i = 0; i < 4; ++i) {
        QPDFObjectHandle item = array.getArrayItem(i);
        if (!item.isNumber()) {
            return {};
        }
        *parts[i] = item.getNumericValue();
    }
    return linear;
}

void ContentDraws::add(QPDFObjGen object, const Linear &matrix) {
    std::set<Linear> &sizes = images[object];
    if (sizes.size() < kMostSizes) {
        sizes.insert(matrix);
    } else if (!sizes.contains(matrix)) {
        unclear.insert(object);
    }
}

void ContentDraws::add(const ContentDraws &inner, const Linear &matrix) {
    for (const auto &[image, sizes] : inner.images) {
        for (const Linear &size : sizes) {
            add(image, size.then(matrix));
        }
    }
    unclear.insert(inner.unclear.begin(), inner.unclear.end());
}

void ContentDraws::addUnclear(const ContentDraws &inner) {
    for (const auto &[image, sizes] : inner.images) {
        unclear.insert(image);
    }
    unclear.insert(inner.unclear.begin(), inner.unclear.end());
}

/// Runs over the tokens of one content stream, keeping the transformation matrix alone.
class ContentReader::Scanner : public QPDFObjectHandle::TokenFilter {
  public:
    Scanner(ContentReader &reader, ContentScope &scope)
        : m_reader(reader)
        , m_scope(scope) {}

    void handleToken(const QPDFTokenizer::Token &token) override {
        switch (token.getType()) {
        case QPDFTokenizer::tt_integer:
        case QPDFTokenizer::tt_real:
            pushNumber(std::strtod(token.getValue().c_str(), nullptr));
            break;
        case QPDFTokenizer::tt_name:
            m_name = token.getValue();
            break;
        case QPDFTokenizer::tt_word:
            run(token.getValue());
            m_count = 0;
            m_name.clear();
            break;
        default:
            break;
        }
    }

    /// What was drawn, objects painted several times in the same size counted once.
    ContentDraws draws() {
        for (const auto &[id, use] : m_objects) {
            drawObject(id, use);
        }
        return std::move(m_draws);
    }

  private:
    void pushNumber(double value) {
        if (m_count == m_numbers.size()) {
            std::shift_left(m_numbers.begin(), m_numbers.end(), 1);
            --m_count;
        }
        m_numbers[m_count++] = value;
    }

    void run(const std::string &word) {
        if (word == "q") {
            // Deeper levels are counted alone, so that "q" over and over claims no memory.
            if (m_saved.size() < kDeepestNesting) {
                m_saved.push_back(m_matrix);
            } else {
                ++m_unsaved;
            }
        } else if (word == "Q") {
            restore();
        } else if (word == "cm" && m_count == m_numbers.size()) {
            m_matrix =
                Linear{m_numbers[0], m_numbers[1], m_numbers[2], m_numbers[3]}.then(m_matrix);
        } else if (word == "Do") {
            use(entry(m_scope.resources, "/XObject", m_name), m_matrix);
        } else if (word == "gs") {
            QPDFObjectHandle state = entry(m_scope.resources, "/ExtGState", m_name);
            if (state.isDictionary() && state.getKey("/SMask").isDictionary()) {
                use(state.getKey("/SMask").getKey("/G"), m_matrix);
            }
        } else if (word == "scn" || word == "SCN") {
            usePattern(entry(m_scope.resources, "/Pattern", m_name));
        }
    }

    void restore() {
        if (m_unsaved > 0) {
            --m_unsaved;
        } else if (!m_saved.empty()) {
            m_matrix = m_saved.back();
            m_saved.pop_back();
        }
    }

    void use(QPDFObjectHandle object, const Linear &matrix) {
        if (!object.isStream()) {
            return;
        }
        auto [place, isNew] = m_objects.try_emplace(object.getObjGen());
        place->second.object = object;
        if (place->second.sizes.size() <= kMostSizes) {
            place->second.sizes.insert(matrix);
        }
    }

    /// A pattern's cell is laid into the space of the content that holds it, whatever the matrix.
    void usePattern(QPDFObjectHandle pattern) {
        if (pattern.isStream()) {
            use(pattern, Linear());
        }
    }

    struct Use {
        QPDFObjectHandle object;
        std::set<Linear> sizes;
    };

    void drawObject(QPDFObjGen id, const Use &use) {
        if (isImage(use.object)) {
            for (const Linear &size : use.sizes) {
                m_draws.add(id, size);
            }
            return;
        }
        const ContentDraws inner = m_reader.readForm(use.object, m_scope);
        if (use.sizes.size() > kMostSizes) {
            m_draws.addUnclear(inner);
        }
        for (const Linear &size : use.sizes) {
            m_draws.add(inner, size);
        }
    }

    ContentReader &m_reader;
    ContentScope &m_scope;
    Linear m_matrix;
    std::vector<Linear> m_saved;
    std::size_t m_unsaved = 0;
    std::array<double, 6> m_numbers = {};
    std::size_t m_count = 0;
    std::string m_name;
    std::map<QPDFObjGen, Use> m_objects;
    ContentDraws m_draws;
};

ContentDraws ContentReader::readContent(const QPDFObjectHandle &content, ContentScope &scope) {
    ContentDraws draws;
    if (canDrawImages(scope.resources)) {
        Scanner scanner(*this, scope);
        std::string text;
        const bool isWhole = readText(content, text);
        Pl_QPDFTokenizer tokenizer("content", &scanner);
        tokenizer.writeString(text);
        tokenizer.finish();
        draws = scanner.draws();
        if (!isWhole) {
            addAllUnclear(scope, draws);
        }
    }
    readFonts(scope, draws);
    return draws;
}

/// What cannot be read may draw any image of its resources at any size.
void ContentReader::addAllUnclear(ContentScope &scope, ContentDraws &draws) {
    draws.addUnclear(ContentDraws(draws));
    QPDFObjectHandle objects = scope.resources.getKey("/XObject");
    if (!objects.isDictionary()) {
        return;
    }
    for (auto &[name, object] : objects.ditems()) {
        if (isImage(object)) {
            draws.unclear.insert(object.getObjGen());
        } else {
            draws.addUnclear(readForm(object, scope));
        }
    }
}

ContentDraws ContentReader::readPage(const QPDFObjectHandle &page, ContentScope &scope) {
    return readContent(page, scope);
}

ContentDraws ContentReader::readForm(QPDFObjectHandle form, ContentScope &outer) {
    if (!form.isStream() || isImage(form)) {
        return {};
    }
    const QPDFObjGen id = form.getObjGen();
    ContentScope own{form.getDict().getKey("/Resources"), {}};
    const bool hasOwn = own.resources.isDictionary();
    auto &known = hasOwn ? m_forms : outer.forms;
    if (const auto found = known.find(id); found != known.end()) {
        return found->second;
    }
    if (m_open.contains(id) || m_open.size() >= kDeepestForms) {
        return {};
    }
    m_open.insert(id);
    const ContentDraws inner = readContent(form, hasOwn ? own : outer);
    m_open.erase(id);
    ContentDraws draws;
    draws.add(inner, linearOf(form.getDict().getKey("/Matrix")));
    known[id] = draws;
    return draws;
}

/// The size of a glyph follows the text that shows it, which is not read: images in the glyphs of
/// Type 3 fonts are unclear.
void ContentReader::readFonts(ContentScope &scope, ContentDraws &draws) {
    QPDFObjectHandle fonts = scope.resources.isDictionary() ? scope.resources.getKey("/Font")
                                                            : QPDFObjectHandle::newNull();
    if (!fonts.isDictionary()) {
        return;
    }
    for (auto &[name, font] : fonts.ditems()) {
        if (!font.isDictionary() || !font.getKey("/Subtype").isNameAndEquals("/Type3") ||
            !font.getKey("/CharProcs").isDictionary() ||
            !m_fontsRead.insert(font.getObjGen()).second) {
            continue;
        }
        ContentScope own{font.getKey("/Resources"), {}};
        for (auto &[glyph, procedure] : font.getKey("/CharProcs").ditems()) {
            draws.addUnclear(readForm(procedure, own.resources.isDictionary() ? own : scope));
        }
    }
}

} // namespace folioforge
