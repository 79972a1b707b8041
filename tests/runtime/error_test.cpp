#include "runtime/error.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <new>
#include <set>

namespace velmora {
namespace {

constexpr int numbers_in_use[] = {5,   6,   7,   9,    11,   13,   52,   53,   54,   55,  57,
                                  61,  62,  70,  75,   76,   91,   94,   343,  424,  429, 438,
                                  462, 481, 482, 3021, 3022, 3044, 3075, 3078, 3265, 3343};

TEST(ErrorDescription, speaks_the_five_languages) {
    EXPECT_EQ(error_description(9, 'E'), "Subíndice fuera del intervalo");
    EXPECT_EQ(error_description(9, 'I'), "Subscript out of range");
    EXPECT_EQ(error_description(9, 'F'), "L'indice n'appartient pas à la sélection");
    EXPECT_EQ(error_description(9, 'P'), "Índice fora do intervalo");
    EXPECT_EQ(error_description(9, 'T'), "Indice non compreso nell'intervallo");
}

TEST(ErrorDescription, is_spanish_for_any_other_letter) {
    EXPECT_EQ(error_description(11, 'X'), "División por cero");
    EXPECT_EQ(error_description(11, '\0'), "División por cero");
}

TEST(ErrorDescription, has_a_text_of_its_own_for_every_number) {
    for (const char language : {'E', 'I', 'F', 'P', 'T'}) {
        std::set<std::string> texts;
        for (const int number : numbers_in_use) {
            const auto text = error_description(number, language);
            EXPECT_EQ(text.find(std::to_string(number)), std::string::npos) << text;
            EXPECT_TRUE(texts.insert(text).second) << text;
        }
    }
}

TEST(ErrorDescription, names_a_number_it_does_not_know) {
    EXPECT_EQ(error_description(1234, 'E'), "Error definido por la aplicación o el objeto (1234)");
    EXPECT_EQ(error_description(-7, 'I'), "Application-defined or object-defined error (-7)");
}

TEST(Raise, carries_number_and_description) {
    try {
        raise(error::disk_full, "own text");
    } catch (const RuntimeError& failure) {
        EXPECT_EQ(failure.number, 61);
        EXPECT_EQ(failure.description, "own text");
        EXPECT_STREQ(failure.what(), "run-time error 61");
        return;
    }
    FAIL() << "nothing raised";
}

TEST(Trap, hands_over_errors_and_a_lack_of_memory) {
    int caught = 0;
    const auto note = [&caught](const RuntimeError& failure) {
        caught = failure.number;
    };
    trap([] { raise(error::subscript); }, note);
    EXPECT_EQ(caught, 9);
    trap([] { throw std::bad_alloc(); }, note);
    EXPECT_EQ(caught, 7);
    caught = 0;
    trap([] {}, note);
    EXPECT_EQ(caught, 0);
    EXPECT_THROW(trap([] { throw 5; }, note), int);
}

} // namespace
} // namespace velmora
