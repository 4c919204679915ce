# Says of each property, for the reference, which functions read and write it. One with a writer
# apply...() has only private ones.
/Q_PROPERTY(/ {
    :join
    /)$/! { N; s/\n */ /; b join
    }
    s|Q_PROPERTY(.* WRITE apply.*|/** For forms and style sheets only. */ &|
    t
    s|Q_PROPERTY(.* \([a-zA-Z]*\) READ \([a-zA-Z]*\) WRITE \([a-zA-Z]*\)|/** Read by \2() and written by \3(). */ &|
    t
    s|Q_PROPERTY([^)]* READ \([a-zA-Z]*\))|/** Read by \1(). */ &|
}
