#include "editor/canvas/AnnotationCommands.h"
#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/DrawingGesture.h"
#include "editor/canvas/EditedDocument.h"
#include "editor/canvas/MovingGesture.h"
#include "editor/canvas/PencilGesture.h"
#include "editor/canvas/PlacingGesture.h"
#include "editor/canvas/WordsGesture.h"
#include "editor/model/ScreenshotRenderer.h"
#include "support/EditStore.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace tembra {
namespace {

using Kind = ScreenshotAnnotation::Kind;

constexpr QSize imageSize(80, 60);

// A user who draws, changes, takes back, saves and opens again, and a list of all states that the document
// has had since it was opened, which says what it must be now.
class EditSequence {
public:
    EditSequence(EditStore &edits, const QString &path, unsigned seed)
        : m_store(edits.store), m_path(path), m_random(seed) {
        reopen();
    }

    void run(int steps) {
        for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
            doSomething();
            verify();
        }
        save();
        reopen();
        verify();
    }

private:
    struct State {
        std::vector<ScreenshotAnnotation> annotations;
        std::optional<QRectF> crop;

        bool operator==(const State &) const = default;
    };

    [[nodiscard]] int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    [[nodiscard]] QPointF anywhere() {
        return {below(imageSize.width() * 4) / 4.0, below(imageSize.height() * 4) / 4.0};
    }
    [[nodiscard]] QRectF limits() const {
        return m_document->cropRect().value_or(QRectF(QPointF(), QSizeF(imageSize)));
    }
    [[nodiscard]] AnnotationCommands commands() { return {*m_document, limits()}; }
    [[nodiscard]] State current() const { return {m_document->annotations(), m_document->cropRect()}; }

    void doSomething() {
        switch (below(16)) {
        case 0:
        case 1:
        case 2:
            return edit([this] { draw(); });
        case 3:
            return edit([this] { type(); });
        case 4:
            return edit([this] { drag(); });
        case 5:
            return edit([this] { commands().nudge({double(below(9) - 4), double(below(9) - 4)}); });
        case 6:
            return edit([this] { commands().order(static_cast<AnnotationCommands::Order>(below(4))); });
        case 7:
            return edit([this] { commands().restyle(change()); });
        case 8:
            return edit([this] { copyAndPaste(); });
        case 9:
            return edit([this] { m_document->deleteSelection(); });
        case 10:
            return edit([this] { crop(); });
        case 11:
            return select();
        case 12:
        case 13:
            return undo();
        case 14:
            return redo();
        default:
            return below(3) == 0 ? saveAndReopen() : select();
        }
    }

    // A change of the document is the end of the history, whether it is a step of its own or part of the
    // last.
    void edit(const std::function<void()> &action) {
        const State before = current();
        const int index = m_document->history().index();
        action();
        if (current() == before)
            return;
        const bool isMerged = m_document->history().index() == index;
        m_states.resize(m_at + (isMerged ? 0 : 1));
        m_states.push_back(current());
        m_at = m_states.size() - 1;
    }
    void undo() {
        m_document->history().undo();
        m_at -= m_at > 0 ? 1 : 0;
    }
    void redo() {
        m_document->history().redo();
        m_at += m_at + 1 < m_states.size() ? 1 : 0;
    }

    void draw() {
        const auto kind = static_cast<Kind>(below(8));
        ScreenshotAnnotation made = annotationEditing::made(kind == Kind::text ? Kind::arrow : kind,
                                                            {.color = {1, 0, 0, 1}, .size = 20});
        std::unique_ptr<CanvasGesture> gesture;
        if (made.number) {
            made.number->value = m_document->nextNumber();
            gesture = std::make_unique<PlacingGesture>(made, limits());
        } else if (made.pencil) {
            gesture = std::make_unique<PencilGesture>(made, anywhere(), limits(), 1);
        } else if (made.blur && below(2) == 0) {
            gesture = std::make_unique<WordsGesture>(
                made, anywhere(), std::vector{QRectF(10, 10, 30, 8), QRectF(40, 40, 20.5, 9)}, limits(), 3);
        } else {
            gesture = std::make_unique<DrawingGesture>(made, anywhere(), limits(), 4);
        }
        apply(*gesture);
    }
    void drag() {
        if (!m_document->selectedAnnotations().empty()) {
            MovingGesture gesture(m_document->selectedAnnotations(), anywhere(), {limits(), {limits()}, 6},
                                  false);
            apply(gesture);
        }
    }
    void apply(CanvasGesture &gesture) {
        const std::array modifiers{Qt::NoModifier, Qt::ShiftModifier, Qt::AltModifier};
        CanvasDraft draft;
        for (int moves = 0; moves < 3; ++moves)
            draft = gesture.drag(anywhere(), modifiers[static_cast<std::size_t>(below(3))]);
        commands().put(draft.annotations, gesture.actionName());
        if (!draft.annotations.empty())
            m_document->setSelectedIDs({draft.annotations.front().id});
    }
    void type() {
        ScreenshotAnnotation typed = annotationEditing::made(Kind::text, {.color = {0, 0, 1, 1}, .size = 12});
        const std::array texts{QStringLiteral("a\nb"), QStringLiteral("שלום"),
                               QStringLiteral("日本 \"\\\u2028"), QStringLiteral("\U0001F600 \u0001")};
        typed.text->string = texts[static_cast<std::size_t>(below(4))];
        typed.text->maximumWidth = 40 + below(60);
        typed.points = {EditorPoint::from(anywhere())};
        commands().put({typed}, QStringLiteral("Add text"));
    }
    [[nodiscard]] EditorStyleChange change() {
        const EditorStyleChange changes[]{{.color = EditorColor{below(9) / 8.0, 0.1, 1 / 3.0, 1}},
                                          {.sizeSteps = below(7) - 3},
                                          {.isFilled = below(2) == 0},
                                          {.hasBackground = below(2) == 0},
                                          {.strength = EditorBlur::Strength::light},
                                          {.number = 1 + below(500)},
                                          {.straightens = true}};
        return changes[below(7)];
    }
    void copyAndPaste() {
        if (below(2) == 0)
            return commands().duplicate();
        EXPECT_TRUE(commands().copy(m_pasteboard));
        offerWhatWasCopied(m_pasteboard);
        (void)commands().paste(m_pasteboard, anywhere());
    }
    void crop() {
        const QRectF rect(below(30), below(20), 20 + below(30), 20 + below(20));
        if (rect != m_document->cropRect())
            m_document->applyCrop(rect);
    }
    void select() {
        QSet<QUuid> ids;
        for (const ScreenshotAnnotation &one : m_document->annotations()) {
            if (below(3) == 0)
                ids.insert(one.id);
        }
        m_document->setSelectedIDs(ids);
    }

    void save() {
        const auto saved = m_store.save(m_loaded, m_document->annotations(), m_document->cropRect());
        ASSERT_TRUE(saved) << saved.error().message.toStdString();
        m_loaded = saved->loaded;
        m_document->refreshBaseline(m_loaded);
        EXPECT_FALSE(m_document->isDirty());
        const auto pixels =
            ScreenshotRenderer::render(m_loaded.original, m_document->annotations(), m_document->cropRect());
        ASSERT_TRUE(pixels);
        EXPECT_EQ(pixelsOf(QImage(m_path)), pixelsOf(*pixels));
    }
    void saveAndReopen() {
        save();
        if (below(2) == 0)
            reopen();
    }
    void reopen() {
        const auto before = m_document ? std::optional(current()) : std::nullopt;
        const auto loaded = m_store.load(m_path, {});
        ASSERT_TRUE(loaded) << loaded.error().message.toStdString();
        m_loaded = *loaded;
        m_document = std::make_unique<ScreenshotEditDocument>(m_loaded);
        m_states = {current()};
        m_at = 0;
        EXPECT_EQ(current(), before.value_or(State{}));
        EXPECT_FALSE(m_document->history().canUndo());
        EXPECT_TRUE(m_document->selectedIDs().isEmpty());
    }

    void verify() const {
        EXPECT_EQ(current(), m_states[m_at]);
        EXPECT_EQ(m_document->history().canUndo(), m_at > 0);
        EXPECT_EQ(m_document->history().canRedo(), m_at + 1 < m_states.size());
        QSet<QUuid> ids;
        for (const ScreenshotAnnotation &one : m_document->annotations()) {
            EXPECT_TRUE(one.isDrawable()) << static_cast<int>(one.kind);
            ids.insert(one.id);
        }
        EXPECT_EQ(ids.size(), static_cast<qsizetype>(m_document->annotations().size()));
        EXPECT_TRUE(ids.contains(m_document->selectedIDs()));
    }

    ScreenshotEditStore &m_store;
    const QString m_path;
    std::mt19937 m_random;
    FakePasteboard m_pasteboard;
    ScreenshotEditLoaded m_loaded;
    std::unique_ptr<ScreenshotEditDocument> m_document;
    std::vector<State> m_states;
    std::size_t m_at = 0;
};

class EditSequencesTest : public testing::TestWithParam<unsigned> {};

TEST_P(EditSequencesTest, endAsTheModelSays) {
    const QTemporaryDir folder;
    EditStore edits(folder.path());
    for (unsigned sequence = 0; sequence < 25 && !HasFailure(); ++sequence) {
        const QString path =
            writeFile(edits.path(QStringLiteral("%1.png").arg(sequence)), pictureBytes("png", imageSize));
        const unsigned seed = GetParam() * 100 + sequence;
        SCOPED_TRACE(seed);
        EditSequence(edits, path, seed).run(36);
    }
}

INSTANTIATE_TEST_SUITE_P(seeds, EditSequencesTest, testing::Range(1U, 9U));

} // namespace
} // namespace tembra
