// SPDX-License-Identifier: MIT
#include "support/AlbumFixture.h"
#include "viewer/StoryWalk.h"

#include <QtTest>

#include <memory>

// The story: chapter 1 holds paragraphs 1 to 3, chapters 2 and 3 none, chapter 4 holds 4 and 5.
class TestStoryWalk : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { album_.reset(); }
    void Steps_data();
    void Steps();
    void BrokenLinksEndTheWalk_data();
    void BrokenLinksEndTheWalk();
    void NothingButEmptyChapters();

private:
    using Walk = StoryStep (*)(StoryPosition&);
    static QString Take(Walk walk, StoryPosition position);

    std::unique_ptr<AlbumFixture> album_;
};

Q_DECLARE_METATYPE(StoryPosition)

namespace {

const QHash<QString, StoryStep (*)(StoryPosition&)> walks{{"next", StepToNextParagraph},
                                                          {"previous", StepToPreviousParagraph},
                                                          {"next chapter", StepToNextChapter},
                                                          {"top", StepToTopOfChapter}};

} // namespace

void TestStoryWalk::init()
{
    album_ = std::make_unique<AlbumFixture>();
    for (const char* name : {"One", "Two", "Three", "Four"})
        album_->AddChapter(name);
    for (int i = 0; i < 3; ++i)
        album_->AddParagraph(1, "text");
    for (int i = 0; i < 2; ++i)
        album_->AddParagraph(4, "text");
}

QString TestStoryWalk::Take(Walk walk, StoryPosition position)
{
    const StoryStep step = walk(position);
    const QStringList names{"nothing", "paragraph", "chapter", "close"};
    return QStringLiteral("%1 %2/%3")
        .arg(names[int(step)])
        .arg(position.chapter)
        .arg(position.paragraph);
}

void TestStoryWalk::Steps_data()
{
    QTest::addColumn<QString>("walk");
    QTest::addColumn<StoryPosition>("from");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* name, const char* walk, StoryPosition from,
                        const char* result) { QTest::newRow(name) << walk << from << result; };
    row("next", "next", {1, 1}, "paragraph 1/2");
    row("over empty chapters", "next", {1, 3}, "chapter 4/4");
    row("round to the beginning", "next", {4, 5}, "chapter 1/1");
    row("nowhere without a paragraph", "next", {2, 0}, "nothing 2/0");
    row("previous", "previous", {1, 2}, "paragraph 1/1");
    row("first stays", "previous", {1, 1}, "paragraph 1/1");
    row("an empty chapter is not skipped backwards", "previous", {4, 4}, "chapter 3/0");
    row("next chapter", "next chapter", {1, 2}, "chapter 2/0");
    row("from an empty chapter", "next chapter", {3, 0}, "chapter 4/4");
    row("last chapter's end", "next chapter", {4, 4}, "paragraph 4/5");
    row("top of the chapter", "top", {1, 3}, "paragraph 1/1");
    row("chapter before", "top", {4, 4}, "chapter 3/0");
    row("from an empty chapter back", "top", {2, 0}, "chapter 1/1");
    row("top of all", "top", {1, 1}, "nothing 1/1");
}

void TestStoryWalk::Steps()
{
    QFETCH(QString, walk);
    QFETCH(StoryPosition, from);
    QTEST(Take(walks[walk], from), "result");
}

void TestStoryWalk::BrokenLinksEndTheWalk_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<QString>("walk");
    QTest::addColumn<StoryPosition>("from");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* name, const char* damage, const char* walk, StoryPosition from,
                        const char* result) {
        QTest::newRow(name) << damage << walk << from << result;
    };
    row("dangling next", "UPDATE Paragraph SET NextParagraph=99 WHERE Id=2", "next", {1, 2},
        "chapter 4/4");
    row("dangling previous", "UPDATE Paragraph SET PreviousParagraph=99 WHERE Id=2", "previous",
        {1, 2}, "paragraph 1/1");
    row("cycle to the end", "UPDATE Paragraph SET NextParagraph=4 WHERE Id=5", "next chapter",
        {4, 4}, "paragraph 4/5");
    row("cycle to the top", "UPDATE Paragraph SET PreviousParagraph=3 WHERE Id=1", "top", {1, 2},
        "paragraph 1/3");
    row("dangling first paragraph", "UPDATE Chapter SET FirstParagraph=99 WHERE Id=4", "next",
        {1, 3}, "chapter 1/1");
    row("dangling next chapter", "UPDATE Chapter SET NextChapter=99 WHERE Id=1", "next", {1, 3},
        "chapter 1/1");
    row("chapter cycle past no paragraph", "UPDATE Chapter SET NextChapter=2 WHERE Id=3", "next",
        {1, 3}, "nothing 1/3");
    row("paragraph gone", "DELETE FROM Paragraph WHERE Id=2", "next", {1, 2}, "nothing 1/2");
    row("no chapter at all", "DELETE FROM Chapter", "next", {1, 3}, "close 1/3");
}

void TestStoryWalk::BrokenLinksEndTheWalk()
{
    QFETCH(QString, damage);
    QFETCH(QString, walk);
    QFETCH(StoryPosition, from);
    album_->Execute(damage);
    QTEST(Take(walks[walk], from), "result");
}

void TestStoryWalk::NothingButEmptyChapters()
{
    album_->Execute("UPDATE Chapter SET FirstParagraph=0");
    StoryPosition position{1, 3};
    GoToFirstParagraph(position);
    QCOMPARE(position, (StoryPosition{1, 0}));
    QCOMPARE(Take(StepToNextParagraph, {4, 5}), "nothing 4/5");
}

QTEST_GUILESS_MAIN(TestStoryWalk)
#include "test_story_walk.moc"
