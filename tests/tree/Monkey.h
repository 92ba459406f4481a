/// A random user and host of one tree, whose nodes misbehave in all that they are asked, with a model beside
/// it.
///
///     Monkey monkey(seed);
///     monkey.run(20000);                    // steps
///     monkey.finish();
///     EXPECT_EQ(monkey.failure(), "");      // what went wrong, and the story of the last steps
///
/// A step is an operation of the host, or input of the user. In a clean step nodes behave, and the selection
/// must be as the model has it afterwards. In the others, whatever the tree asks may first delete, insert,
/// move, open, close, select, walk, run messages, or raise an exception; then the order of the items and the
/// nodes alive must be right, and the model takes over what is selected.
#pragma once

#include "MonkeyModel.h"
#include "MonkeyNode.h"
#include "MonkeyTree.h"
#include "TreeScene.h"

#include <deque>
#include <map>
#include <random>

class Monkey
{
public:
    static constexpr UINT kCommand = 4001;

    /// All of the tree is looked at after each step with misdeeds, and every so many steps; in between, at
    /// the number of items, the caret and the selection.
    explicit Monkey(unsigned seed, int every = 16);
    ~Monkey();

    /// Stops at the first failure.
    void run(int steps);
    /// Destroys the window: no node may be left.
    void finish();
    void noteCrash() { fail("a crash"); }
    /// Empty when all is well.
    const std::string& failure() const { return m_failure; }
    /// The last steps and misdeeds.
    std::string story() const;
    /// How many misdeeds were committed, so that a test can tell that there were any.
    int misdeeds() const { return m_misdeeds; }

    // For the nodes
    void onCreated(MonkeyNode& node);
    void onDestroyed(MonkeyNode& node);
    void callOut(const char* operation, int id);
    void expectAlive(const char* operation, int id);
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    void growChildren(int id);
    /// The node's item is about to go: the model has it no longer.
    void forget(int id);

    /// The children of a node go when this does; those that it gets afterwards, by opening again before the
    /// tree has finished closing it, go as well.
    class ChildrenGo
    {
    public:
        ChildrenGo(Monkey& monkey, int id)
            : m_monkey(monkey)
            , m_id(id)
            , m_item(monkey.itemOf(id))
        {
            m_monkey.m_closed.insert(id);
        }
        ~ChildrenGo();

    private:
        Monkey& m_monkey;
        const int m_id;
        const HTREEITEM m_item; ///< a node may have been inserted anew, and its new item keeps its children
    };

private:
    // What the host does, alone or as a misdeed
    void insertPlain(int parent);
    void insertInPlace(int parent);
    void insertMany();
    HTREEITEM insertAt(MonkeyNode& node, int parent, HTREEITEM after);
    void deleteNode(int id);
    void deleteAll();
    void moveNode(int id);
    void toggle(int id);
    void selectSomething();
    void walkAndDelete();
    void updateSomething();
    void runMessages();
    void raiseSomething(bool everything);
    void commitMisdeed(int id);

    // What the user and the host do, step by step
    void step();
    void catching(const std::function<void()>& act);
    void hostStep();
    void userStep();
    void click();
    void clickBelow();
    void clickButton();
    void key();
    void openOrClose(UINT way);
    void sortChildren();
    void refreshAll();
    void eraseSelected();
    void goByPath();
    void editLabel();
    void runCommand();
    void openMenu();
    void askTip();
    void sendKey(UINT code, bool shift, bool ctrl);
    void pressAt(CPoint point, WPARAM keys, bool right);

    // The model
    void expectInsertion(int id, int parent, int previous, bool sure);
    void takeInInserted();
    void addToModel(int id, int parent, int expectedPrevious, bool sure);
    void expectClick(int id, bool shift, bool ctrl);
    void expectMoveTo(int id, bool shift, bool ctrl);
    void verify();
    void verifyAtAGlance();
    void verifyStructure();
    void verifySelection();
    void verifyRows();
    void takeOverSelection();

    LRESULT ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    MonkeyNode* alive(int id);
    bool isSelected(int id);
    int caretNow();
    int idOf(HTREEITEM item);
    HTREEITEM itemOf(int id);
    std::vector<int> shownChildren(HTREEITEM item);
    bool isOpen(int id);
    std::vector<int> displayed();
    int anyNode();
    int anyShown();
    int anyOpenPlace();
    std::string anyName();
    void tell(const std::string& what);
    void fail(const std::string& what);
    std::string names(const std::vector<int>& ids);

    /// Where a node that is being inserted is expected, until it has an item.
    struct Insertion
    {
        int parent;
        int previous;
        bool sure;
        int misdeedsBefore;
    };

    std::mt19937 m_random;
    const int m_every;   ///< steps from one look at all to the next
    const bool m_halves; ///< the tree searches sorted children by halving
    MonkeyModel m_model;
    std::map<int, MonkeyNode*> m_alive;
    std::map<int, Insertion> m_inserting;
    std::set<int> m_closed; ///< nodes that were told to close in this step
    std::deque<std::string> m_story;
    std::string m_failure;
    int m_nextId = 1;
    int m_step = 0;
    int m_misdeeds = 0;
    int m_deletionsWithEditor = 0; ///< under way that began with an open editor
    int m_chance = 0;              ///< one misdeed in so many calls; 0 for none
    int m_left = 0;                ///< misdeeds still allowed in this step
    int m_depth = 0;               ///< misdeeds within misdeeds
    bool m_dirty = false;
    bool m_clicked = false; ///< in this step, so that a label edit may begin later
    bool m_posted = false;  ///< messages may be waiting
    bool m_over = false;
    BYTE m_keys[256]{};

    std::unique_ptr<ovo::testkit::RecordingParent> m_parent;
    std::unique_ptr<MonkeyTree> m_tree;
    std::unique_ptr<StillWindows> m_still;
    EVSubscription m_gestures;
};
