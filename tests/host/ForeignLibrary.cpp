// A library without an add-in's entry points.
extern "C" int answerOfAForeignLibrary()
{
    return 42;
}
