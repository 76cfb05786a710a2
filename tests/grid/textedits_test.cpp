// textedits_test.cpp -- from one text to another by small changes.
#include "grid/textedits.h"
#include "testing.h"

#include <random>

// The text with each line end as one character.
static Text Places(Text text)
{
    for (size_t at = 0; (at = text.find("\r\n", at)) != Text::npos;)
        text.replace(at, 2, "\n");
    return text;
}

static Text Edited(const Text& before, const Text& after)
{
    Text text = Places(before);
    int last = int(text.size()) + 1;
    for (const TextEdit& edit : EditsBetween(before, after)) {
        CHECK(edit.from + edit.removed <= last);
        last = edit.from;
        text.replace(size_t(edit.from), size_t(edit.removed), Places(edit.put));
    }
    return text;
}

TEST_CASE("of a paragraph that has changed only the middle is touched, and the others not at all")
{
    const std::vector<TextEdit> edits = EditsBetween("@1\r\na\r\n@9 x\r\nb", "@1\r\n@2\r\na\r\n@10 x\r\nb");
    REQUIRE(edits.size() == 2);
    CHECK(edits[0].from == 6);
    CHECK(edits[0].removed == 1);
    CHECK(edits[0].put == "10");
    CHECK(edits[1].from == 3);
    CHECK(edits[1].removed == 0);
    CHECK(edits[1].put == "@2\r\n");
    CHECK(EditsBetween("a\r\nb", "a\r\nb").empty());
}

TEST_CASE("each text becomes each other one by the changes between them")
{
    std::mt19937 random(7);
    const auto any = [&random](unsigned below) { return unsigned(random() % below); };
    const auto text = [&any] {
        Text made;
        for (unsigned i = any(8); i > 0; --i)
            made += any(3) == 0 ? Text("\r\n") : Text(1, char('a' + any(2)));
        return made;
    };
    for (int i = 0; i < 3000; ++i) {
        const Text before = text(), after = text();
        CAPTURE(before);
        CAPTURE(after);
        CHECK(Edited(before, after) == Places(after));
    }
}
