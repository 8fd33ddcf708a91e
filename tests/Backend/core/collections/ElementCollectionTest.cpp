#include "Backend/core/collections/ElementCollection.h"

#include "Backend/core/collections/ConstHashMapIterator.h"
#include "Backend/core/collections/ConstVectorIterator.h"
#include "Backend/core/collections/HashMapIterator.h"
#include "Backend/core/collections/VectorIterator.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <type_traits>

namespace Backend::Component {
namespace {

// Elements by their index, as a list of layers is.
class NameList : public ElementCollection<int, std::string> {
public:
    std::unique_ptr<IteratorIF<std::string>> createIterator() override {
        return std::make_unique<VectorIterator<std::string>>(m_names);
    }

    std::string* find(const int& id) override {
        if (id < 0 || static_cast<std::size_t>(id) >= m_names.size())
            return nullptr;
        return &m_names[static_cast<std::size_t>(id)];
    }

    std::vector<std::string> m_names = {"a", "b", "c"};
};

TEST(ElementCollectionTest, ListFindsByIndexWithinItsSize) {
    NameList list;
    ASSERT_NE(list.find(2), nullptr);
    EXPECT_EQ(*list.find(2), "c");
    EXPECT_EQ(list.find(-1), nullptr);
    EXPECT_EQ(list.find(3), nullptr);
}

TEST(ElementCollectionTest, IteratorsWalkIndependently) {
    NameList list;
    const auto first = list.createIterator();
    const auto second = list.createIterator();
    EXPECT_EQ(*first->next(), "a");
    EXPECT_EQ(*first->next(), "b");
    EXPECT_EQ(*second->next(), "a");
    *first->next() = "changed";
    EXPECT_EQ(list.m_names[2], "changed");
}

TEST(ElementCollectionTest, VectorIteratorGivesNullPastTheEnd) {
    std::vector<int> numbers = {1, 2};
    VectorIterator<int> iterator(numbers);
    EXPECT_TRUE(iterator.hasNext());
    EXPECT_EQ(iterator.next(), &numbers[0]);
    EXPECT_EQ(iterator.next(), &numbers[1]);

    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(iterator.hasNext());
        EXPECT_EQ(iterator.next(), nullptr);
    }

    std::vector<int> none;
    VectorIterator<int> ofNone(none);
    EXPECT_FALSE(ofNone.hasNext());
    EXPECT_EQ(ofNone.next(), nullptr);
}

TEST(ElementCollectionTest, VectorIteratorOutsideTheVectorGivesNull) {
    std::vector<int> numbers = {1, 2};
    for (const int index : {-1, 2, 3}) {
        VectorIterator<int> iterator(numbers, index);
        EXPECT_FALSE(iterator.hasNext()) << index;
        EXPECT_EQ(iterator.next(), nullptr) << index;
        ConstVectorIterator<int> constIterator(numbers, index);
        EXPECT_FALSE(constIterator.hasNext()) << index;
        EXPECT_EQ(constIterator.next(), nullptr) << index;
    }
}

TEST(ElementCollectionTest, ConstVectorIteratorWalksTheSameWay) {
    const std::vector<int> numbers = {1, 2};
    ConstVectorIterator<int> iterator(numbers);
    static_assert(std::is_same_v<decltype(iterator.next()), const int*>);
    EXPECT_EQ(iterator.next(), &numbers[0]);
    EXPECT_TRUE(iterator.hasNext());
    EXPECT_EQ(iterator.next(), &numbers[1]);
    EXPECT_FALSE(iterator.hasNext());
    EXPECT_EQ(iterator.next(), nullptr);
}

TEST(ElementCollectionTest, HashMapIteratorVisitsEachElementOnceAndThenGivesNull) {
    std::unordered_map<char, int> map;
    for (int i = 0; i < 100; ++i)
        map[static_cast<char>(i)] = i;
    HashMapIterator<char, int> iterator(map);
    ConstHashMapIterator<char, int> constIterator(map);
    static_assert(std::is_same_v<decltype(constIterator.next()), const int*>);

    std::set<int> seen;
    while (iterator.hasNext()) {
        const int* element = iterator.next();
        ASSERT_NE(element, nullptr);
        EXPECT_TRUE(seen.insert(*element).second);
        EXPECT_TRUE(constIterator.hasNext());
        EXPECT_EQ(constIterator.next(), element);
    }

    EXPECT_EQ(seen.size(), 100u);

    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(iterator.next(), nullptr);
        EXPECT_FALSE(constIterator.hasNext());
        EXPECT_EQ(constIterator.next(), nullptr);
    }
}

TEST(ElementCollectionTest, HashMapIteratorTakesAnyMap) {
    std::map<int, std::string> map = {{2, "b"}, {1, "a"}};
    HashMapIterator<int, std::string, std::map<int, std::string>> iterator(map);
    EXPECT_EQ(*iterator.next(), "a");
    *iterator.next() = "c";
    EXPECT_EQ(map[2], "c");
    EXPECT_EQ(iterator.next(), nullptr);
}

}
}
