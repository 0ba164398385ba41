#include "scanner/project_properties.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

/// The texts of an expression, or the problem of the first.
QStringList textsOf(ProjectProperties &properties, const QString &expression)
{
    QStringList texts;
    for (const ProjectText &text : properties.expand(expression)) {
        if (!text.problem.isEmpty())
            return {text.problem};
        texts.append(text.text);
    }
    return texts;
}

const QString inDebug = u"'$(Configuration)'=='Debug'"_s;

} // namespace

class tst_project_properties : public QObject
{
    Q_OBJECT

private slots:
    void expressionsHaveTheValuesOfTheirProperties_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("no property") << u"a.cpp"_s << QStringList{u"a.cpp"_s};
        QTest::newRow("empty") << QString() << QStringList{QString()};
        QTest::newRow("one") << u"$(Dir)a.cpp"_s << QStringList{u"src\\a.cpp"_s};
        QTest::newRow("other capitals") << u"$(DIR)a.cpp"_s << QStringList{u"src\\a.cpp"_s};
        QTest::newRow("blanks") << u"$( Dir )"_s << QStringList{u"src\\"_s};
        QTest::newRow("two") << u"$(Dir)$(Name)"_s << QStringList{u"src\\x"_s};
        QTest::newRow("several values")
            << u"$(Platform)\\$(Name)"_s << QStringList{u"Win32\\x"_s, u"x64\\x"_s};
        QTest::newRow("a dollar sign") << u"$a$.cpp"_s << QStringList{u"$a$.cpp"_s};
        QTest::newRow("an open parenthesis") << u"a$(Dir"_s << QStringList{u"a$(Dir"_s};
        QTest::newRow("not defined") << u"$(None)\\a.cpp"_s
                                     << QStringList{u"the property \"None\" is not defined"_s};
        QTest::newRow("a function") << u"$([System.IO.Path]::GetFullPath('$(Dir)'))a.cpp"_s
                                    << QStringList{
                                           u"the property function "
                                           "$([System.IO.Path]::GetFullPath('$(Dir)')) is not evaluated"_s};
        QTest::newRow("a function of a text")
            << u"$(Dir.Trim())"_s << QStringList{u"the property function $(Dir.Trim()) is not evaluated"_s};
        QTest::newRow("a list of items") << u"@(Sources)"_s << QStringList{u"@(Sources) is not evaluated"_s};
        QTest::newRow("metadata") << u"%(Filename).cpp"_s << QStringList{u"%(Filename) is not evaluated"_s};
        QTest::newRow("an escape sequence") << u"%28a%29"_s << QStringList{u"%28a%29"_s};
    }

    void expressionsHaveTheValuesOfTheirProperties()
    {
        QFETCH(const QString, expression);
        ProjectProperties properties;
        properties.assign(u"Dir"_s, u"src\\"_s, {}, false);
        properties.reserve(u"Name"_s, u"x"_s);
        properties.addValue(u"Platform"_s, u"Win32"_s);
        properties.addValue(u"Platform"_s, u"x64"_s);
        properties.addValue(u"Platform"_s, u"x64"_s);
        QTEST(textsOf(properties, expression), "texts");
    }

    void laterValuesReplaceEarlierOnes()
    {
        ProjectProperties properties;
        properties.assign(u"A"_s, u"1"_s, {}, false);
        properties.assign(u"B"_s, u"$(A)"_s, {}, false);
        properties.assign(u"a"_s, u"2"_s, {}, false);
        QCOMPARE(textsOf(properties, u"$(A)$(B)"_s), QStringList{u"21"_s});
    }

    void valuesOfConfigurationsAreAdded()
    {
        ProjectProperties properties;
        properties.assign(u"A"_s, u"1"_s, {}, false);
        properties.assign(u"A"_s, u"2"_s, inDebug, true);
        properties.assign(u"A"_s, u"2"_s, {}, true);
        QCOMPARE(textsOf(properties, u"$(A)"_s), QStringList({u"1"_s, u"2"_s}));
        properties.assign(u"A"_s, u"3"_s, {}, false);
        QCOMPARE(textsOf(properties, u"$(A)"_s), QStringList{u"3"_s});
    }

    void defaultsCountForPropertiesWithoutAValueOnly_data()
    {
        QTest::addColumn<QString>("condition");
        QTest::newRow("quotes") << u"'$(A)'==''"_s;
        QTest::newRow("blanks and other capitals") << u" '$(a)' == '' "_s;
        QTest::newRow("no quotes") << u"$(A) == ''"_s;
    }

    void defaultsCountForPropertiesWithoutAValueOnly()
    {
        QFETCH(const QString, condition);
        ProjectProperties properties;
        properties.assign(u"A"_s, {}, {}, false);
        properties.assign(u"A"_s, u"1"_s, condition, true);
        properties.assign(u"A"_s, u"2"_s, condition, true);
        QCOMPARE(textsOf(properties, u"$(A)"_s), QStringList{u"1"_s});
    }

    void reservedPropertiesCannotBeAssigned()
    {
        ProjectProperties properties;
        properties.reserve(u"MSBuildProjectName"_s, u"client"_s);
        properties.assign(u"MSBuildProjectName"_s, u"other"_s, {}, false);
        QCOMPARE(textsOf(properties, u"$(MSBuildProjectName)"_s), QStringList{u"client"_s});
    }

    void propertiesMayBeginWithTheirEarlierValue()
    {
        ProjectProperties properties;
        properties.assign(u"A"_s, u"$(A);a.cpp"_s, {}, false);
        properties.assign(u"A"_s, u"$(A);b.cpp"_s, {}, false);
        QCOMPARE(textsOf(properties, u"$(A)"_s), QStringList{u";a.cpp;b.cpp"_s});
    }

    void problemsStayWithTheValue()
    {
        ProjectProperties properties;
        properties.assign(u"A"_s, u"$(None)\\src"_s, {}, false);
        QCOMPARE(textsOf(properties, u"$(A)\\a.cpp"_s),
                 QStringList{u"the property \"None\" is not defined"_s});
    }

    void valuesThatGrowWithoutBoundsAreAProblem()
    {
        ProjectProperties properties;
        properties.assign(u"A"_s, u"0123456789"_s, {}, false);
        for (int doubling = 0; doubling < 100; ++doubling)
            properties.assign(u"A"_s, u"$(A)$(A)"_s, {}, false);
        QCOMPARE(textsOf(properties, u"$(A)"_s), QStringList{u"the values of its properties are too long"_s});
    }

    void tooManyConfigurationsAreAProblem()
    {
        ProjectProperties properties;
        for (int value = 0; value < 10; ++value)
            properties.assign(u"A"_s, QString::number(value), inDebug, true);
        QCOMPARE(textsOf(properties, u"$(A)"_s).size(), 10);
        QCOMPARE(textsOf(properties, u"$(A)$(A)"_s), QStringList{u"its properties have too many values"_s});
        for (int value = 0; value < 100; ++value)
            properties.assign(u"A"_s, QString::number(value), inDebug, true);
        QCOMPARE(textsOf(properties, u"$(A)"_s), QStringList{u"the property \"A\" has too many values"_s});
    }

    void entriesAreSeparatedBySemicolons_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("one") << u"a.cpp"_s << QStringList{u"a.cpp"_s};
        QTest::newRow("several") << u"a.cpp;b.cpp"_s << QStringList{u"a.cpp"_s, u"b.cpp"_s};
        QTest::newRow("blanks and empty entries")
            << u"; a.cpp ;\n\t b c.cpp;; "_s << QStringList{u"a.cpp"_s, u"b c.cpp"_s};
        QTest::newRow("within a reference")
            << u"$(A.Replace(';','_'));b"_s << QStringList{u"$(A.Replace(';','_'))"_s, u"b"_s};
        QTest::newRow("within an item function")
            << u"@(A->'%(X)', ';');b"_s << QStringList{u"@(A->'%(X)', ';')"_s, u"b"_s};
        QTest::newRow("open parentheses") << u"$(a;$(b;c"_s << QStringList{u"$(a"_s, u"$(b"_s, u"c"_s};
        QTest::newRow("escaped") << u"a%3Bb"_s << QStringList{u"a%3Bb"_s};
        QTest::newRow("nothing") << QString() << QStringList();
    }

    void entriesAreSeparatedBySemicolons()
    {
        QFETCH(const QString, list);
        QTEST(listEntries(list), "entries");
    }

    void escapeSequencesAreCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("plain");
        QTest::newRow("none") << u"a.cpp"_s << u"a.cpp"_s;
        QTest::newRow("several") << u"%24%28A%29%3b"_s << u"$(A);"_s;
        QTest::newRow("not hexadecimal") << u"100%xy"_s << u"100%xy"_s;
        QTest::newRow("a sign") << u"%+1%-1"_s << u"%+1%-1"_s;
        QTest::newRow("at the end") << u"a%"_s << u"a%"_s;
        QTest::newRow("one digit") << u"a%2"_s << u"a%2"_s;
        QTest::newRow("wildcards stay") << u"a%2a%3F"_s << u"a%2a%3F"_s;
    }

    void escapeSequencesAreCharacters()
    {
        QFETCH(const QString, text);
        QTEST(unescaped(text), "plain");
    }
};

NVX_GUILESS_TEST(tst_project_properties)

#include "tst_project_properties.moc"
