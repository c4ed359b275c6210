<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>AlbumPassword</name>
    <message numerus="yes">
        <source>%n earlier state(s) of this album have no password: whoever gets at your files can read what the album held then. Shall they be deleted?</source>
        <translation>
            <numerusform>%n earlier state of this album has no password: whoever gets at your files can read what the album held then. Shall it be deleted?</numerusform>
            <numerusform>%n earlier states of this album have no password: whoever gets at your files can read what the album held then. Shall they be deleted?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them could not be deleted.</source>
        <translation>
            <numerusform>%n of them could not be deleted.</numerusform>
            <numerusform>%n of them could not be deleted.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AlbumStatus</name>
    <message numerus="yes">
        <source>%Ln picture(s)</source>
        <translation>
            <numerusform>%Ln picture</numerusform>
            <numerusform>%Ln pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not indexed</source>
        <translation>
            <numerusform>%Ln not indexed</numerusform>
            <numerusform>%Ln not indexed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) missing</source>
        <translation>
            <numerusform>%Ln file missing</numerusform>
            <numerusform>%Ln files missing</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message numerus="yes">
        <source>%n legend(s)</source>
        <translation>
            <numerusform>%n legend</numerusform>
            <numerusform>%n legends</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n value(s)</source>
        <translation>
            <numerusform>%1: %n value</numerusform>
            <numerusform>%1: %n values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) change: %1.</source>
        <translation>
            <numerusform>%n picture changes: %1.</numerusform>
            <numerusform>%n pictures change: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new value(s): %1</source>
        <translation>
            <numerusform>%n new value: %1</numerusform>
            <numerusform>%n new values: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) changed.</source>
        <translation>
            <numerusform>%n picture changed.</numerusform>
            <numerusform>%n pictures changed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were changed elsewhere meanwhile; that stays.</source>
        <translation>
            <numerusform>%n picture was changed elsewhere meanwhile; that stays.</numerusform>
            <numerusform>%n pictures were changed elsewhere meanwhile; that stays.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ChapterList</name>
    <message numerus="yes">
        <source>%Ln paragraph(s)</source>
        <translation>
            <numerusform>%Ln paragraph</numerusform>
            <numerusform>%Ln paragraphs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckReport</name>
    <message numerus="yes">
        <source>%n link(s) to pictures belong to paragraphs that are gone.</source>
        <translation>
            <numerusform>%n link to a picture belongs to a paragraph that is gone.</numerusform>
            <numerusform>%n links to pictures belong to paragraphs that are gone.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paragraphs are linked with %n picture(s) that the album does not hold.</source>
        <translation>
            <numerusform>Paragraphs are linked with %n picture that the album does not hold.</numerusform>
            <numerusform>Paragraphs are linked with %n pictures that the album does not hold.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Pictures have %n value(s) that the tables do not list.</source>
        <translation>
            <numerusform>Pictures have %n value that the tables do not list.</numerusform>
            <numerusform>Pictures have %n values that the tables do not list.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are in the album more than once.</source>
        <translation>
            <numerusform>%n picture is in the album more than once.</numerusform>
            <numerusform>%n pictures are in the album more than once.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The files of %n picture(s) are not where they were.</source>
        <translation>
            <numerusform>The file of %n picture is not where it was.</numerusform>
            <numerusform>The files of %n pictures are not where they were.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message numerus="yes">
        <source>%n sidecar(s) written.</source>
        <translation>
            <numerusform>%n sidecar written.</numerusform>
            <numerusform>%n sidecars written.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) written.</source>
        <translation>
            <numerusform>%n picture written.</numerusform>
            <numerusform>%n pictures written.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are described so already.</source>
        <translation>
            <numerusform>%n picture is described so already.</numerusform>
            <numerusform>%n pictures are described so already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) differ.</source>
        <translation>
            <numerusform>%n picture differs.</numerusform>
            <numerusform>%n pictures differ.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n legend(s)</source>
        <translation>
            <numerusform>%n legend</numerusform>
            <numerusform>%n legends</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n value(s)</source>
        <translation>
            <numerusform>%1: %n value</numerusform>
            <numerusform>%1: %n values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) changed.</source>
        <translation>
            <numerusform>%n picture changed.</numerusform>
            <numerusform>%n pictures changed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DescriptionTransfer</name>
    <message numerus="yes">
        <source>and %n other(s)</source>
        <translation>
            <numerusform>and %n other</numerusform>
            <numerusform>and %n others</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The descriptions of %n picture(s) were written.</source>
        <translation>
            <numerusform>The description of %n picture was written.</numerusform>
            <numerusform>The descriptions of %n pictures were written.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write an XMP file beside each of %n picture(s)? What other programs have written into such files stays.</source>
        <translation>
            <numerusform>Write an XMP file beside the picture (%n picture)? What other programs have written into such a file stays.</numerusform>
            <numerusform>Write an XMP file beside each of %n pictures? What other programs have written into such files stays.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are described so already.</source>
        <translation>
            <numerusform>%n picture is described so already.</numerusform>
            <numerusform>%n pictures are described so already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) are not in the album.</source>
        <translation>
            <numerusform>%n picture is not in the album.</numerusform>
            <numerusform>%n pictures are not in the album.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) come a second time, which does not count.</source>
        <translation>
            <numerusform>%n picture comes a second time, which does not count.</numerusform>
            <numerusform>%n pictures come a second time, which does not count.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message numerus="yes">
        <source>%n file(s) left out: their names are not valid text</source>
        <translation>
            <numerusform>%n file left out: its name is not valid text</numerusform>
            <numerusform>%n files left out: their names are not valid text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) left out: no pictures</source>
        <translation>
            <numerusform>%n file left out: no picture</numerusform>
            <numerusform>%n files left out: no pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EarlierStates</name>
    <message numerus="yes">
        <source>Before the first change of each day the album is kept as it was, among its earlier states. This one is so large that it will take about %n second(s) each time. Shall its states be kept?</source>
        <translation>
            <numerusform>Before the first change of each day the album is kept as it was, among its earlier states. This one is so large that it will take about %n second each time. Shall its states be kept?</numerusform>
            <numerusform>Before the first change of each day the album is kept as it was, among its earlier states. This one is so large that it will take about %n seconds each time. Shall its states be kept?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message numerus="yes">
        <source>%n picture(s) loaded</source>
        <translation>
            <numerusform>%n picture loaded</numerusform>
            <numerusform>%n pictures loaded</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were in the album already</source>
        <translation>
            <numerusform>%n picture was in the album already</numerusform>
            <numerusform>%n pictures were in the album already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) left out, because you stopped</source>
        <translation>
            <numerusform>%n picture left out, because you stopped</numerusform>
            <numerusform>%n pictures left out, because you stopped</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterSentence</name>
    <message numerus="yes">
        <source>%1 is %2, %3 or one of %n others</source>
        <translation>
            <numerusform>%1 is %2, %3 or %n other</numerusform>
            <numerusform>%1 is %2, %3 or one of %n others</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 is none of %2, %3 and %n others</source>
        <translation>
            <numerusform>%1 is none of %2, %3 and %n other</numerusform>
            <numerusform>%1 is none of %2, %3 and %n others</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n pictures</source>
        <translation>
            <numerusform>%1: %n picture</numerusform>
            <numerusform>%1: %n pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FoundModel</name>
    <message numerus="yes">
        <source>%n files to choose from</source>
        <translation>
            <numerusform>%n file to choose from</numerusform>
            <numerusform>%n files to choose from</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmCheckAlbum</name>
    <message numerus="yes">
        <source>%n finding(s); each tells what mends it.</source>
        <translation>
            <numerusform>%n finding; it tells what mends it.</numerusform>
            <numerusform>%n findings; each tells what mends it.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmDescribePictures</name>
    <message numerus="yes">
        <source>%1 of %n pictures chosen</source>
        <translation>
            <numerusform>%1 of %n picture chosen</numerusform>
            <numerusform>%1 of %n pictures chosen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Pictures</source>
        <translation>
            <numerusform>Apply to %n Picture</numerusform>
            <numerusform>Apply to %n Pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different legends</source>
        <translation>
            <numerusform>%n different legend</numerusform>
            <numerusform>%n different legends</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures described</source>
        <translation>
            <numerusform>%n picture described</numerusform>
            <numerusform>%n pictures described</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply what you have entered to %n pictures ?</source>
        <translation>
            <numerusform>Apply what you have entered to %n picture ?</numerusform>
            <numerusform>Apply what you have entered to %n pictures ?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmEarlierStates</name>
    <message numerus="yes">
        <source>%1 as it was, %n time(s), in %2 :</source>
        <translation>
            <numerusform>%1 as it was, once, in %2 :</numerusform>
            <numerusform>%1 as it was, %n times, in %2 :</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmEditTables</name>
    <message numerus="yes">
        <source>%n pictures still have &apos;%1&apos;</source>
        <translation>
            <numerusform>%n picture still has &apos;%1&apos;</numerusform>
            <numerusform>%n pictures still have &apos;%1&apos;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmLinkedPictures</name>
    <message numerus="yes">
        <source>%n linked pictures, which the paragraph shows first, in this order</source>
        <translation>
            <numerusform>%n linked picture, which the paragraph shows first</numerusform>
            <numerusform>%n linked pictures, which the paragraph shows first, in this order</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n linked files are not in the album.</source>
        <translation>
            <numerusform>%n linked file is not in the album.</numerusform>
            <numerusform>%n linked files are not in the album.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmMissingPictures</name>
    <message numerus="yes">
        <source>%1 of %n picture(s) missing</source>
        <translation>
            <numerusform>%1 of %n picture missing</numerusform>
            <numerusform>%1 of %n pictures missing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>you stopped after %n files</source>
        <translation>
            <numerusform>you stopped after %n file</numerusform>
            <numerusform>you stopped after %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders cannot be read</source>
        <translation>
            <numerusform>%n folder cannot be read</numerusform>
            <numerusform>%n folders cannot be read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) found again</source>
        <translation>
            <numerusform>%n picture found again</numerusform>
            <numerusform>%n pictures found again</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links follow</source>
        <translation>
            <numerusform>%n link follows</numerusform>
            <numerusform>%n links follow</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file patterns of paragraphs follow</source>
        <translation>
            <numerusform>the file pattern of %n paragraph follows</numerusform>
            <numerusform>the file patterns of %n paragraphs follow</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file patterns stay, as not all pictures of their folders are in one place</source>
        <translation>
            <numerusform>%n file pattern stays, as not all pictures of its folder are in one place</numerusform>
            <numerusform>%n file patterns stay, as not all pictures of their folders are in one place</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already in the album</source>
        <translation>
            <numerusform>%n already in the album</numerusform>
            <numerusform>%n already in the album</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmTakeChapters</name>
    <message numerus="yes">
        <source>%n chapter(s) taken back.</source>
        <translation>
            <numerusform>%n chapter taken back.</numerusform>
            <numerusform>%n chapters taken back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraph(s) in all.</source>
        <translation>
            <numerusform>%n paragraph in all.</numerusform>
            <numerusform>%n paragraphs in all.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) to pictures came with them.</source>
        <translation>
            <numerusform>%n link to a picture came with them.</numerusform>
            <numerusform>%n links to pictures came with them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) that the album did not hold any more came back with them.</source>
        <translation>
            <numerusform>%n picture that the album did not hold any more came back with them.</numerusform>
            <numerusform>%n pictures that the album did not hold any more came back with them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmTakeFromFiles</name>
    <message numerus="yes">
        <source>%1 of %n file(s) read</source>
        <translation>
            <numerusform>%1 of %n file read</numerusform>
            <numerusform>%1 of %n files read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cannot be read to the end</source>
        <translation>
            <numerusform>%n cannot be read to the end</numerusform>
            <numerusform>%n cannot be read to the end</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n keyword(s) find no place.</source>
        <translation>
            <numerusform>%n keyword finds no place.</numerusform>
            <numerusform>%n keywords find no place.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageDisplay</name>
    <message numerus="yes">
        <source>%n images found</source>
        <translation>
            <numerusform>%n images found</numerusform>
            <numerusform>%n images found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n images left</source>
        <translation>
            <numerusform>%n images left</numerusform>
            <numerusform>%n images left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ParagraphPreview</name>
    <message numerus="yes">
        <source>%n images found</source>
        <translation>
            <numerusform>%n images found</numerusform>
            <numerusform>%n images found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n images left</source>
        <translation>
            <numerusform>%n images left</numerusform>
            <numerusform>%n images left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmLoadFiles</name>
    <message numerus="yes">
        <source>%n picture(s) selected</source>
        <translation>
            <numerusform>%n picture(s) selected</numerusform>
            <numerusform>%n picture(s) selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) loaded</source>
        <translation>
            <numerusform>%n picture(s) loaded</numerusform>
            <numerusform>%n picture(s) loaded</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n new</numerusform>
            <numerusform>%n new</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n there already</source>
        <translation>
            <numerusform>%n there already</numerusform>
            <numerusform>%n there already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of other kinds left out</source>
        <translation>
            <numerusform>%n picture of another kind left out</numerusform>
            <numerusform>%n pictures of other kinds left out</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmReloadPictures</name>
    <message numerus="yes">
        <source>%n picture references updated</source>
        <translation>
            <numerusform>%n picture references updated</numerusform>
            <numerusform>%n picture references updated</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already in the album</source>
        <translation>
            <numerusform>%n already in the album</numerusform>
            <numerusform>%n already in the album</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links made by hand keep the old path</source>
        <translation>
            <numerusform>%n link made by hand keeps the old path</numerusform>
            <numerusform>%n links made by hand keep the old path</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PublishReport</name>
    <message numerus="yes">
        <source>%Ln pictures were published</source>
        <translation>
            <numerusform>%Ln picture was published</numerusform>
            <numerusform>%Ln pictures were published</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them made anew.</source>
        <translation>
            <numerusform>%Ln of them made anew.</numerusform>
            <numerusform>%Ln of them made anew.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pictures are missing:</source>
        <translation>
            <numerusform>%Ln picture is missing:</numerusform>
            <numerusform>%Ln pictures are missing:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pictures cannot be read:</source>
        <translation>
            <numerusform>%Ln picture cannot be read:</numerusform>
            <numerusform>%Ln pictures cannot be read:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message numerus="yes">
        <source>%Ln pictures</source>
        <translation>
            <numerusform>%Ln picture</numerusform>
            <numerusform>%Ln pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln paragraphs</source>
        <translation>
            <numerusform>%Ln paragraph</numerusform>
            <numerusform>%Ln paragraphs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UndoStep</name>
    <message numerus="yes">
        <source>Link %n Pictures</source>
        <translation>
            <numerusform>Link %n Picture</numerusform>
            <numerusform>Link %n Pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlink %n Pictures</source>
        <translation>
            <numerusform>Unlink %n Picture</numerusform>
            <numerusform>Unlink %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UndoSteps</name>
    <message numerus="yes">
        <source>%n steps undone</source>
        <translation>
            <numerusform>%n step undone</numerusform>
            <numerusform>%n steps undone</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n steps redone</source>
        <translation>
            <numerusform>%n step redone</numerusform>
            <numerusform>%n steps redone</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmUndo</name>
    <message numerus="yes">
        <source>Undo %n Steps</source>
        <translation>
            <numerusform>Undo %n Step</numerusform>
            <numerusform>Undo %n Steps</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message numerus="yes">
        <source>%Ln pictures</source>
        <translation>
            <numerusform>%Ln picture</numerusform>
            <numerusform>%Ln pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more pictures</source>
        <translation>
            <numerusform>and %Ln more picture</numerusform>
            <numerusform>and %Ln more pictures</numerusform>
        </translation>
    </message>
</context>
</TS>
