// Trees of panels that show, hide and change their height at random, compared with where everything must be by the rule
// alone: below one another, five pixels apart, in windows as high as what shows in them.
#include "Gui/Utils/Panel.h"
#include "tests/Gui/Utils/TemplateIds.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace Gui {
namespace {

constexpr int SPACING = 5;
constexpr int START_HEIGHT = 30;

// What a panel must be like, recorded separately from the panel.
struct Node {
    std::unique_ptr<Panel> panel;
    Node* parent = nullptr;
    std::vector<Node*> children;
    bool isDialog = false;
    bool showing = false;
    int windowHeight = 0;  // Of a dialog.
    int windowWidth = 0;

    int contentHeight() const {
        if (isDialog)
            return windowHeight;
        int height = 0;
        for (const Node* child : children)
            if (child->showing)
                height += child->height();
        return height;
    }

    int contentWidth() const {
        if (isDialog)
            return windowWidth;
        int width = 0;
        for (const Node* child : children)
            width = std::max(width, child->contentWidth());
        return width;
    }

    // The space above.
    int spacing() const {
        if (!parent || !showing || contentHeight() == 0)
            return 0;
        for (const Node* other : parent->children) {
            if (other == this)
                return 0;
            if (other->showing && other->contentHeight() > 0)
                return SPACING;
        }
        return 0;
    }

    int height() const { return contentHeight() + spacing(); }

    int top() const {
        int y = spacing();
        for (const Node* other : parent->children) {
            if (other == this)
                break;
            if (other->showing)
                y += other->height();
        }
        return y;
    }
};

class Tree {
public:
    explicit Tree(unsigned seed) : m_random(seed) {
        Node& root = add(nullptr, false);
        grow(root, 0);
        settleWidths();
    }

    // Makes one random change; false if no program would make it.
    bool change() {
        Node& node = *m_nodes[pick(m_nodes.size())];
        m_log << (node.showing ? " hide " : " show ") << indexOf(node);
        if (node.isDialog && pick(3) == 0) {
            node.windowHeight = static_cast<int>(pick(120)) + 1;
            m_log << " as " << node.windowHeight;
            node.panel->modifyHeight(node.windowHeight);
            return true;
        }
        return toggle(node);
    }

    void compare() const {
        for (const auto& node : m_nodes) {
            const RECT rect = TestSupport::rectInParent(node->panel->getWindowHandle());
            const std::string which = "panel " + std::to_string(indexOf(*node)) + " after" + m_log.str();
            ASSERT_EQ(node->panel->isVisible(), node->showing) << which;
            ASSERT_EQ(rect.bottom - rect.top, node->contentHeight()) << which;
            ASSERT_EQ(node->panel->getHeight(), node->height()) << which;
            ASSERT_EQ(rect.right - rect.left, node->contentWidth()) << which;
            ASSERT_EQ(node->panel->getWidth(), node->contentWidth()) << which;
            if (node->parent) {
                ASSERT_EQ(rect.top, node->top()) << which;
                ASSERT_EQ(rect.left, 0) << which;
            }
        }
        const Node& root = *m_nodes[0];
        RECT top{};
        GetWindowRect(m_top.handle(), &top);
        // The top window follows only once the root shows.
        const int height = START_HEIGHT + (root.showing ? root.contentHeight() : 0);
        ASSERT_EQ(top.bottom - top.top, height) << m_log.str();
        if (root.showing) {
            ASSERT_EQ(top.right - top.left, root.contentWidth() + 4) << m_log.str();
        }
    }

private:
    std::size_t pick(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random); }

    std::size_t indexOf(const Node& node) const {
        const auto found =
            std::find_if(m_nodes.begin(), m_nodes.end(), [&](const auto& n) { return n.get() == &node; });
        return static_cast<std::size_t>(found - m_nodes.begin());
    }

    Node& add(Node* parent, bool isDialog) {
        m_nodes.push_back(std::make_unique<Node>());
        Node& node = *m_nodes.back();
        node.isDialog = isDialog;
        node.parent = parent;
        node.panel = std::make_unique<Panel>(isDialog ? (pick(2) == 0 ? IDD_TEST_SMALL : IDD_TEST_WIDE) : 0);
        if (parent) {
            parent->children.push_back(&node);
            EXPECT_TRUE(parent->panel->add(node.panel.get()));
        } else {
            node.panel->createWnd(GetModuleHandleA(nullptr), m_top.handle());
        }
        if (isDialog) {
            const RECT rect = TestSupport::rectInParent(node.panel->getWindowHandle());
            node.windowHeight = rect.bottom;
            node.windowWidth = rect.right;
        }
        return node;
    }

    void grow(Node& container, int depth) {
        const std::size_t count = 2 + pick(3);
        for (std::size_t i = 0; i < count; ++i) {
            const bool isDialog = depth == 2 || pick(3) != 0;
            Node& child = add(&container, isDialog);
            if (!isDialog)
                grow(child, depth + 1);
        }
    }

    // A container updates its width with each change in it; a few rounds carry that to the top.
    void settleWidths() {
        for (int round = 0; round < 4; ++round)
            for (const auto& node : m_nodes)
                if (node->parent)
                    for (const bool show : {true, false})
                        node->panel->showWnd(show);
    }

    bool toggle(Node& node) {
        const bool isRoot = node.parent == nullptr;
        if (isRoot && node.showing)
            return false;  // The top window doesn't shrink with a root that hides.
        // Containers deeper down are never left showing without anything in them.
        const bool leavesEmpty = node.showing && !isRoot && node.parent->parent && node.parent->showing &&
                                 node.parent->contentHeight() == node.height();
        const bool showsEmpty = !node.isDialog && !isRoot && node.parent->parent && node.contentHeight() == 0;
        if (leavesEmpty || showsEmpty)
            return false;
        node.showing = !node.showing;
        node.panel->showWnd(node.showing);
        return true;
    }

    std::mt19937 m_random;
    TestSupport::TestWindow m_top{400, START_HEIGHT};
    std::vector<std::unique_ptr<Node>> m_nodes;
    std::ostringstream m_log;
};

class PanelFlow : public testing::TestWithParam<unsigned> {};

TEST_P(PanelFlow, EverythingLiesWhereTheRuleSays) {
    Tree tree(GetParam());
    ASSERT_NO_FATAL_FAILURE(tree.compare());
    for (int done = 0; done < 120;) {
        done += tree.change() ? 1 : 0;
        ASSERT_NO_FATAL_FAILURE(tree.compare());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PanelFlow, testing::Range(1u, 25u));

}
}
