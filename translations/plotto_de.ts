<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Plotto</name>
    <message>
        <source>check box</source>
        <translation>Kontrollkästchen</translation>
    </message>
    <message>
        <source>scroll bar</source>
        <translation>Bildlaufleiste</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>Plotto lessons (*.plotto);;All files (*)</source>
        <translation>Plotto-Lektionen (*.plotto);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>That could not be done: %1 (error %2). Nothing else is affected; change what was typed and try again.</source>
        <translation>Das ließ sich nicht ausführen: %1 (Fehler %2). Sonst ist nichts betroffen; ändern Sie die Eingabe und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>%1 konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .svg, .pdf or .png.</source>
        <translation>Der Dateiname %1 sagt nicht, welche Art von Datei geschrieben werden soll: beenden Sie ihn mit .svg, .pdf oder .png.</translation>
    </message>
    <message>
        <source>the picture is too large for the memory</source>
        <translation>das Bild ist zu groß für den Speicher</translation>
    </message>
    <message>
        <source>the file could not be made</source>
        <translation>die Datei konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>You graphing window is compromised.  It will be reset to the defaults.</source>
        <translation>Ihr Grafikfenster ist beschädigt. Es wird auf die Standardwerte zurückgesetzt.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>&amp;Select Function</source>
        <translation>&amp;Funktion wählen</translation>
    </message>
    <message>
        <source>&amp;Plotto!</source>
        <translation>&amp;Plotto!</translation>
    </message>
    <message>
        <source>&amp;Erase Graph</source>
        <translation>Graph &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>&amp;Standardwerte</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>Window: x from %1 to %2, y from %3 to %4.</source>
        <translation>Fenster: x von %1 bis %2, y von %3 bis %4.</translation>
    </message>
    <message>
        <source>And %1 more drawings.</source>
        <translation>Und %1 weitere Zeichnungen.</translation>
    </message>
    <message>
        <source>y = 0 (no function chosen)</source>
        <translation>y = 0 (keine Funktion gewählt)</translation>
    </message>
    <message>
        <source>&amp;Caption under the graph</source>
        <translation>&amp;Beschriftung unter dem Graphen</translation>
    </message>
    <message>
        <source>&amp;Black and white (line styles instead of colours)</source>
        <translation>&amp;Schwarzweiß (Linienarten statt Farben)</translation>
    </message>
    <message>
        <source>&amp;Line width:</source>
        <translation>&amp;Linienstärke:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source>Export Graph</source>
        <translation>Graph exportieren</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg);;PDF document (*.pdf);;PNG picture (*.png)</source>
        <translation>SVG-Zeichnung (*.svg);;PDF-Dokument (*.pdf);;PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Type a Function...</source>
        <translation>Funktion &amp;eingeben...</translation>
    </message>
    <message>
        <source>&amp;Type...</source>
        <translation>&amp;Eingeben...</translation>
    </message>
    <message>
        <source>&amp;Projector Mode</source>
        <translation>&amp;Projektormodus</translation>
    </message>
    <message>
        <source>&amp;Hear the Curve</source>
        <translation>Kurve &amp;hören</translation>
    </message>
    <message>
        <source>&amp;Export Graph...</source>
        <translation>Graph e&amp;xportieren...</translation>
    </message>
    <message>
        <source>P&amp;rint...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Pr&amp;int Preview...</source>
        <translation>Druck&amp;vorschau...</translation>
    </message>
    <message>
        <source>&amp;Add This Screen to the Lesson</source>
        <translation>Diesen Bildschirm zur &amp;Lektion hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Open Lesson...</source>
        <translation>Lektion ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save Lesson...</source>
        <translation>Lektion &amp;speichern...</translation>
    </message>
    <message>
        <source>Export Lesson as &amp;Worksheet...</source>
        <translation>Lektion als &amp;Arbeitsblatt exportieren...</translation>
    </message>
    <message>
        <source>&amp;Next Step</source>
        <translation>&amp;Nächster Schritt</translation>
    </message>
    <message>
        <source>Pre&amp;vious Step</source>
        <translation>V&amp;origer Schritt</translation>
    </message>
    <message>
        <source>Nothing is drawn to hear yet.</source>
        <translation>Es ist noch nichts gezeichnet, das man hören könnte.</translation>
    </message>
    <message>
        <source>No sound device: the curve cannot be heard here. Left and Right still walk along it.</source>
        <translation>Kein Audiogerät: die Kurve kann hier nicht gehört werden. Links und Rechts gehen weiterhin an ihr entlang.</translation>
    </message>
    <message>
        <source>, above the window</source>
        <translation>, oberhalb des Fensters</translation>
    </message>
    <message>
        <source>, below the window</source>
        <translation>, unterhalb des Fensters</translation>
    </message>
    <message>
        <source>Nothing is drawn to walk along yet.</source>
        <translation>Es ist noch nichts gezeichnet, an dem man entlanggehen könnte.</translation>
    </message>
    <message>
        <source>Curve %1 of %2 has no points to walk along.</source>
        <translation>Kurve %1 von %2 hat keine Punkte zum Entlanggehen.</translation>
    </message>
    <message>
        <source>Curve %1 of %2: %3. </source>
        <translation>Kurve %1 von %2: %3. </translation>
    </message>
    <message>
        <source>No root, turn or axis crossing on this curve.</source>
        <translation>Keine Nullstelle, kein Extremum und kein Achsenschnitt auf dieser Kurve.</translation>
    </message>
    <message>
        <source>the screen has no function &apos;%1&apos;</source>
        <translation>der Bildschirm hat keine Funktion „%1“</translation>
    </message>
    <message>
        <source>a typed function names every part: %1</source>
        <translation>eine eingegebene Funktion nennt jeden Teil: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a family number from 1 to %2</source>
        <translation>„%1“ ist eine Familiennummer von 1 bis %2</translation>
    </message>
    <message>
        <source>the function &apos;%1&apos; cannot be taken: %2</source>
        <translation>die Funktion „%1“ kann nicht übernommen werden: %2</translation>
    </message>
    <message>
        <source>Typed function</source>
        <translation>Eingegebene Funktion</translation>
    </message>
    <message>
        <source>Type a function y = f(x)</source>
        <translation>Funktion y = f(x) eingeben</translation>
    </message>
    <message>
        <source>This screen does not graph a function y = f(x).</source>
        <translation>Dieser Bildschirm zeichnet keine Funktion y = f(x).</translation>
    </message>
    <message>
        <source>cannot be computed: the numbers are too large</source>
        <translation>nicht berechenbar: die Zahlen sind zu groß</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>O&amp;riginal Window</source>
        <translation>&amp;Ursprüngliches Fenster</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source> Some drawings made before cannot be drawn again at a new window: press the screen&apos;s buttons to draw them here.</source>
        <translation> Einige zuvor erstellte Zeichnungen können in einem neuen Fenster nicht erneut gezeichnet werden: drücken Sie die Schaltflächen des Bildschirms, um sie hier zu zeichnen.</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers: type them first.</source>
        <translation>Die Fenstergrenzen sind keine Zahlen: geben Sie sie zuerst ein.</translation>
    </message>
    <message>
        <source>No window before this one.</source>
        <translation>Kein Fenster vor diesem.</translation>
    </message>
    <message>
        <source>No window after this one.</source>
        <translation>Kein Fenster nach diesem.</translation>
    </message>
    <message>
        <source>Use %1, the coefficients %2, the numbers e and pi, + - * / and ^ (a power, taken before a minus sign: -x^2 is -(x^2)). Write every product with *, as 2*x. Functions: %3.</source>
        <translation>Verwenden Sie %1, die Koeffizienten %2, die Zahlen e und pi, + - * / und ^ (eine Potenz, die vor einem Minuszeichen ausgewertet wird: -x^2 ist -(x^2)). Schreiben Sie jedes Produkt mit *, etwa 2*x. Funktionen: %3.</translation>
    </message>
    <message>
        <source>Examples...</source>
        <translation>Beispiele...</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Error against the number of steps, log-log</source>
        <translation>Fehler gegen die Anzahl der Schritte, doppelt logarithmisch</translation>
    </message>
    <message>
        <source>Re&amp;compute</source>
        <translation>Neu be&amp;rechnen</translation>
    </message>
    <message>
        <source>slope -%1</source>
        <translation>Steigung -%1</translation>
    </message>
    <message>
        <source>Con&amp;vergence</source>
        <translation>&amp;Konvergenz</translation>
    </message>
    <message>
        <source>Convergence &amp;Table...</source>
        <translation>Konvergenz&amp;tabelle...</translation>
    </message>
    <message>
        <source>Animate Classes of Functions</source>
        <translation>Funktionsklassen animieren</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Continuous/Steps</source>
        <translation>Fortlaufend/Schritte</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Steps+Erase</source>
        <translation>Schritte+Löschen</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Fortlaufend</translation>
    </message>
    <message>
        <source>Continuous+Erase</source>
        <translation>Fortlaufend+Löschen</translation>
    </message>
    <message>
        <source>Variable Range</source>
        <translation>Bereich der Variablen</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <source>End:</source>
        <translation>Ende:</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Schritte:</translation>
    </message>
    <message>
        <source>Which Variable?</source>
        <translation>Welche Variable?</translation>
    </message>
    <message>
        <source>Animation frame</source>
        <translation>Animationsbild</translation>
    </message>
    <message>
        <source>Select Variable(s)</source>
        <translation>Variable(n) wählen</translation>
    </message>
    <message>
        <source>&amp;Animate It!</source>
        <translation>&amp;Animieren!</translation>
    </message>
    <message>
        <source>Erase Graph</source>
        <translation>Graph löschen</translation>
    </message>
    <message>
        <source>Erase Graph, animation panel</source>
        <translation>Graph löschen, Animationsfeld</translation>
    </message>
    <message>
        <source>OK to Click Animate</source>
        <translation>Animieren möglich</translation>
    </message>
    <message>
        <source>Use Scroll Bar Above</source>
        <translation>Bildlaufleiste oben benutzen</translation>
    </message>
    <message>
        <source>Graph a Function</source>
        <translation>Eine Funktion zeichnen</translation>
    </message>
    <message>
        <source>Select a function from the pull down menu.  You may change the value of any of the variables, A to E.  Clicking [Plotto!] will graph the function.  You may change any value and graph again to see the change.  You may also animate the change.</source>
        <translation>Wählen Sie eine Funktion aus dem Menü. Sie können den Wert jeder der Variablen A bis E ändern. Ein Klick auf [Plotto!] zeichnet die Funktion. Sie können jeden Wert ändern und erneut zeichnen, um die Änderung zu sehen. Sie können die Änderung auch animieren.</translation>
    </message>
    <message>
        <source>Animate It!</source>
        <translation>Animieren!</translation>
    </message>
    <message>
        <source>Animate the function selected by checking one or more variables at the right, selecting the range of the variable, and clicking [Animate It!]</source>
        <translation>Animieren Sie die gewählte Funktion, indem Sie rechts eine oder mehrere Variablen ankreuzen, den Bereich der Variablen wählen und auf [Animieren!] klicken.</translation>
    </message>
    <message>
        <source>Make conjectures about coefficients</source>
        <translation>Vermutungen über die Koeffizienten aufstellen</translation>
    </message>
    <message>
        <source>You may observe the changes each coefficient makes on the graph.  Make some conjectures about what each coefficient changes the graph.</source>
        <translation>Sie können beobachten, wie jeder Koeffizient den Graphen verändert. Stellen Sie Vermutungen darüber auf, was jeder Koeffizient am Graphen ändert.</translation>
    </message>
    <message>
        <source>Left and Right Clicking Labels</source>
        <translation>Beschriftungen links und rechts anklicken</translation>
    </message>
    <message>
        <source>Clicking on the coefficient labels will increase or decrease the coefficients.  Try left clicking to increase and right clicking to decrease.</source>
        <translation>Ein Klick auf die Beschriftungen der Koeffizienten erhöht oder verringert die Koeffizienten. Probieren Sie einen Linksklick zum Erhöhen und einen Rechtsklick zum Verringern.</translation>
    </message>
    <message>
        <source>Change the Graphing Window</source>
        <translation>Das Grafikfenster ändern</translation>
    </message>
    <message>
        <source>Clicking on the &lt; or &gt; labels next to the graphing window ranges will increase or decrease them by one also.</source>
        <translation>Ein Klick auf die Beschriftungen &lt; oder &gt; neben den Fenstergrenzen erhöht oder verringert diese ebenfalls um eins.</translation>
    </message>
    <message>
        <source>Clicking Labels</source>
        <translation>Beschriftungen anklicken</translation>
    </message>
    <message>
        <source>Try clicking other labels.  Most of them will increase or decrease by one with left or right clicks.</source>
        <translation>Probieren Sie andere Beschriftungen aus. Die meisten erhöhen oder verringern sich mit Links- oder Rechtsklick um eins.</translation>
    </message>
    <message>
        <source>Window limit changes &lt; , &gt;</source>
        <translation>Fenstergrenzen ändern &lt; , &gt;</translation>
    </message>
    <message>
        <source>Notice the &lt; and &gt; green labels next to the window limits.  Clicking on the Arrows will increase or decrease the window limit by one.  Double clicking will increase or decrease it by 5.</source>
        <translation>Beachten Sie die grünen Beschriftungen &lt; und &gt; neben den Fenstergrenzen. Ein Klick auf die Pfeile erhöht oder verringert die Fenstergrenze um eins. Ein Doppelklick erhöht oder verringert sie um 5.</translation>
    </message>
    <message>
        <source>Animating %1 of %2 from %3 to %4 in %5 steps, %6.</source>
        <translation>Animation von %1 von %2 von %3 bis %4 in %5 Schritten, %6.</translation>
    </message>
    <message>
        <source>no coefficient</source>
        <translation>kein Koeffizient</translation>
    </message>
    <message>
        <source>Frame value %1; %2.</source>
        <translation>Bildwert %1; %2.</translation>
    </message>
    <message>
        <source>Area Between Two Curves</source>
        <translation>Fläche zwischen zwei Kurven</translation>
    </message>
    <message>
        <source>Left a</source>
        <translation>Links a</translation>
    </message>
    <message>
        <source>Right b</source>
        <translation>Rechts b</translation>
    </message>
    <message>
        <source>Strips n</source>
        <translation>Streifen n</translation>
    </message>
    <message>
        <source>&amp;Double Strips</source>
        <translation>Streifen ver&amp;doppeln</translation>
    </message>
    <message>
        <source>Find &amp;Crossings</source>
        <translation>&amp;Schnittpunkte finden</translation>
    </message>
    <message>
        <source>Find where f and g cross in [a, b], shade the region and sum the strips</source>
        <translation>Findet, wo sich f und g in [a, b] schneiden, schattiert das Gebiet und summiert die Streifen</translation>
    </message>
    <message>
        <source>Areas by the strip rules</source>
        <translation>Flächen nach den Streifenregeln</translation>
    </message>
    <message>
        <source>Convergence of the signed area</source>
        <translation>Konvergenz der orientierten Fläche</translation>
    </message>
    <message>
        <source>Limit (integral)</source>
        <translation>Grenzwert (Integral)</translation>
    </message>
    <message>
        <source>Shaded light cyan where f is above g, yellow where g is above f.</source>
        <translation>Hellcyan schattiert, wo f über g liegt, gelb, wo g über f liegt.</translation>
    </message>
    <message>
        <source>Type a number in each of the boxes Left a and Right b.</source>
        <translation>Geben Sie in jedes der Felder Links a und Rechts b eine Zahl ein.</translation>
    </message>
    <message>
        <source>The interval from a to b is too wide for the computer&apos;s numbers.</source>
        <translation>Das Intervall von a bis b ist zu breit für die Zahlen des Computers.</translation>
    </message>
    <message>
        <source>Left a must be less than Right b.</source>
        <translation>Links a muss kleiner als Rechts b sein.</translation>
    </message>
    <message>
        <source>The number of strips n must be a whole number from 1 to %1.</source>
        <translation>Die Anzahl der Streifen n muss eine ganze Zahl von 1 bis %1 sein.</translation>
    </message>
    <message>
        <source>Type g(x) in its box (for example x + 2).</source>
        <translation>Geben Sie g(x) in sein Feld ein (zum Beispiel x + 2).</translation>
    </message>
    <message>
        <source>the region between %1 and %2 from x = %3 to %4</source>
        <translation>das Gebiet zwischen %1 und %2 von x = %3 bis %4</translation>
    </message>
    <message>
        <source>and %1 more (Ctrl+C copies them all)</source>
        <translation>und %1 weitere (Strg+C kopiert alle)</translation>
    </message>
    <message>
        <source>f and g do not cross in [a, b].</source>
        <translation>f und g schneiden sich nicht in [a, b].</translation>
    </message>
    <message>
        <source>n odd</source>
        <translation>n ungerade</translation>
    </message>
    <message>
        <source>Rule (n = %1)</source>
        <translation>Regel (n = %1)</translation>
    </message>
    <message>
        <source>Signed area %1, unsigned area %2 from x = %3 to %4 (adaptive Gauss-Kronrod, split at the crossings; error below %5).</source>
        <translation>Orientierte Fläche %1, Betragsfläche %2 von x = %3 bis %4 (adaptives Gauß-Kronrod-Verfahren, an den Schnittpunkten geteilt; Fehler unter %5).</translation>
    </message>
    <message>
        <source>No area: %1, so the area between the curves does not exist on [a, b].</source>
        <translation>Keine Fläche: %1, daher existiert die Fläche zwischen den Kurven auf [a, b] nicht.</translation>
    </message>
    <message>
        <source>the left end a</source>
        <translation>das linke Ende a</translation>
    </message>
    <message>
        <source>the right end b</source>
        <translation>das rechte Ende b</translation>
    </message>
    <message>
        <source>Area between f, %1, and g(x) = %2 from a = %3 to b = %4 with n = %5 strips.</source>
        <translation>Fläche zwischen f, %1, und g(x) = %2 von a = %3 bis b = %4 mit n = %5 Streifen.</translation>
    </message>
    <message>
        <source>No crossings.</source>
        <translation>Keine Schnittpunkte.</translation>
    </message>
    <message>
        <source>%1: signed %2, unsigned %3.</source>
        <translation>%1: orientiert %2, Betrag %3.</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>Was ist das?</translation>
    </message>
    <message>
        <source>This screen finds the area between two curves f and g from x = a to x = b: where they cross, the region between them, and how sums of thin strips close in on the area.</source>
        <translation>Dieser Bildschirm bestimmt die Fläche zwischen zwei Kurven f und g von x = a bis x = b: wo sie sich schneiden, das Gebiet zwischen ihnen und wie sich Summen schmaler Streifen der Fläche nähern.</translation>
    </message>
    <message>
        <source>Setting up</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>f is the screen&apos;s function: select it from the menu and choose A to E, or type one with Tools, Type a Function.  Type g(x) in its box (it may use A to E too).  Type a and b, or click their green labels to move them by one (left button up, right button down).</source>
        <translation>f ist die Funktion des Bildschirms: wählen Sie sie aus dem Menü und wählen Sie A bis E, oder geben Sie eine mit Werkzeuge, Funktion eingeben ein. Geben Sie g(x) in sein Feld ein (es darf auch A bis E benutzen). Geben Sie a und b ein oder klicken Sie auf ihre grünen Beschriftungen, um sie um eins zu verschieben (linke Maustaste hoch, rechte runter).</translation>
    </message>
    <message>
        <source>[Find Crossings]</source>
        <translation>[Schnittpunkte finden]</translation>
    </message>
    <message>
        <source>Lists each x in [a, b] where f = g, found to the computer&apos;s full precision, and shades the region: light cyan where f is above g, yellow where g is above f.  Where a curve is not defined somewhere in [a, b] the screen says where, and gives no area.</source>
        <translation>Listet jedes x in [a, b] mit f = g auf, mit der vollen Genauigkeit des Computers bestimmt, und schattiert das Gebiet: hellcyan, wo f über g liegt, gelb, wo g über f liegt. Wo eine Kurve irgendwo in [a, b] nicht definiert ist, sagt der Bildschirm wo und gibt keine Fläche an.</translation>
    </message>
    <message>
        <source>The strips</source>
        <translation>Die Streifen</translation>
    </message>
    <message>
        <source>The grid sums n strips by five rules: the signed area of f - g (parts where g is above count as negative) and the unsigned area of |f - g|, with the limit from adaptive integration in the last row.  [Double Strips] doubles n; Convergence, Convergence Table shows each rule&apos;s error as n doubles.</source>
        <translation>Die Tabelle summiert n Streifen nach fünf Regeln: die orientierte Fläche von f - g (Teile, in denen g darüber liegt, zählen negativ) und die Betragsfläche von |f - g|, mit dem Grenzwert aus adaptiver Integration in der letzten Zeile. [Streifen verdoppeln] verdoppelt n; Konvergenz, Konvergenztabelle zeigt den Fehler jeder Regel, wenn sich n verdoppelt.</translation>
    </message>
    <message>
        <source>Graphing Classes of Functions</source>
        <translation>Funktionsklassen zeichnen</translation>
    </message>
    <message>
        <source>How To Use This</source>
        <translation>So wird es benutzt</translation>
    </message>
    <message>
        <source>This screen allows you to graph various functions.  Select the function you like from the menu.  Enter the values for A, B, C, D, E, then click on [Plotto].</source>
        <translation>Mit diesem Bildschirm können Sie verschiedene Funktionen zeichnen. Wählen Sie die gewünschte Funktion aus dem Menü. Geben Sie die Werte für A, B, C, D, E ein und klicken Sie dann auf [Plotto].</translation>
    </message>
    <message>
        <source>Making Changes</source>
        <translation>Änderungen vornehmen</translation>
    </message>
    <message>
        <source>You may change the variables then graph again to see the changes to the graph.  You will not erase the graph when changing values of variables or selecting new functions.</source>
        <translation>Sie können die Variablen ändern und erneut zeichnen, um die Änderungen am Graphen zu sehen. Der Graph wird nicht gelöscht, wenn Sie Werte der Variablen ändern oder neue Funktionen wählen.</translation>
    </message>
    <message>
        <source>Quick change hints</source>
        <translation>Schnelle Änderungen</translation>
    </message>
    <message>
        <source>You may also change the values of the variables by clicking on the labels.  Left clicks increase the value by one, a right click decreases the value by one.</source>
        <translation>Sie können die Werte der Variablen auch durch Klicken auf die Beschriftungen ändern. Ein Linksklick erhöht den Wert um eins, ein Rechtsklick verringert ihn um eins.</translation>
    </message>
    <message>
        <source>Change the Graphing Window?</source>
        <translation>Das Grafikfenster ändern?</translation>
    </message>
    <message>
        <source>You can click on [Zoom In] to shrink the graphing area to 1/4 by reducing Xmin, Xmax, Ymin, and Ymax in half.  You may click in the values at the end of the axes to change them to any values you wish.</source>
        <translation>Mit [Vergrößern] verkleinern Sie den Grafikbereich auf 1/4, indem Xmin, Xmax, Ymin und Ymax halbiert werden. Sie können in die Werte an den Enden der Achsen klicken, um sie auf beliebige Werte zu ändern.</translation>
    </message>
    <message>
        <source>Start( _____, _____ )</source>
        <translation>Start( _____, _____ )</translation>
    </message>
    <message>
        <source>Type the rates dy and dx</source>
        <translation>Die Raten dy und dx eingeben</translation>
    </message>
    <message>
        <source>x and y</source>
        <translation>x und y</translation>
    </message>
    <message>
        <source> With dx = 1 the field is the slope field of dy/dx = dy.</source>
        <translation> Mit dx = 1 ist das Feld das Richtungsfeld von dy/dx = dy.</translation>
    </message>
    <message>
        <source>Enter x coordinate:</source>
        <translation>x-Koordinate eingeben:</translation>
    </message>
    <message>
        <source>Enter y coordinate:</source>
        <translation>y-Koordinate eingeben:</translation>
    </message>
    <message>
        <source>Delta x=</source>
        <translation>Delta x=</translation>
    </message>
    <message>
        <source>Delta Vmag=</source>
        <translation>Delta Vbetrag=</translation>
    </message>
    <message>
        <source>In the curve option, Euler is the only method for calculating points.</source>
        <translation>Bei der Kurvenoption ist Euler das einzige Verfahren zur Berechnung der Punkte.</translation>
    </message>
    <message>
        <source>Sorry</source>
        <translation>Leider</translation>
    </message>
    <message>
        <source>The maximum for the points graphed is 10000</source>
        <translation>Höchstens 10000 Punkte werden gezeichnet</translation>
    </message>
    <message>
        <source>Max Points Met-Plus</source>
        <translation>Höchstzahl der Punkte erreicht</translation>
    </message>
    <message>
        <source>Slope Fields, Integral Curves, or Approximations</source>
        <translation>Richtungsfelder, Integralkurven oder Näherungen</translation>
    </message>
    <message>
        <source>This screen allows you to see Slope Fields, see integral curves, or to use various methods to find approximations.</source>
        <translation>Mit diesem Bildschirm sehen Sie Richtungsfelder und Integralkurven oder benutzen verschiedene Verfahren, um Näherungen zu finden.</translation>
    </message>
    <message>
        <source>Graph Slope Fields</source>
        <translation>Richtungsfeld zeichnen</translation>
    </message>
    <message>
        <source>Select dx and dy functions from the menus.  Select the values of the coefficients.  Click on [Graph Slope Fields] to see the slopes at all the integral values of the -10 by 10 screen.  You may resize the screen.  The vectors start at the integers so you can determine the direction from where it is supposed to start.</source>
        <translation>Wählen Sie dx- und dy-Funktionen aus den Menüs. Wählen Sie die Werte der Koeffizienten. Klicken Sie auf [Richtungsfeld zeichnen], um die Steigungen an allen ganzzahligen Stellen des Bildschirms von -10 bis 10 zu sehen. Sie können die Größe des Bildschirms ändern. Die Vektoren beginnen bei den ganzen Zahlen, sodass Sie die Richtung von dort ablesen können, wo sie beginnen sollen.</translation>
    </message>
    <message>
        <source>Left or Right Click in the Graphing screen</source>
        <translation>Links- oder Rechtsklick in den Grafikbereich</translation>
    </message>
    <message>
        <source>Clicking on the graphing part of the screen will start the plot of an integral curve or can be used to find the endpoint approximation from that initial point.  The graph will follow the slope field smoothly or acording to the Delta x from left to right.  If the curve leaves the area, the curve will not come back onto the screen.  If you right click the slope field will go in the opposite direction.  You may select the number of points to plot and the change in x(Delta x) for the Method used in the computation of approximation.  The number of points and Delta x are used by the Plotto button also.</source>
        <translation>Ein Klick in den Grafikteil des Bildschirms beginnt das Zeichnen einer Integralkurve oder dient dazu, von diesem Anfangspunkt aus die Näherung für den Endpunkt zu finden. Der Graph folgt dem Richtungsfeld glatt oder gemäß Delta x von links nach rechts. Verlässt die Kurve den Bereich, kehrt sie nicht auf den Bildschirm zurück. Mit einem Rechtsklick verläuft das Richtungsfeld in die entgegengesetzte Richtung. Sie können die Anzahl der zu zeichnenden Punkte und die Änderung von x (Delta x) für das Verfahren wählen, mit dem die Näherung berechnet wird. Die Anzahl der Punkte und Delta x werden auch von der Schaltfläche Plotto benutzt.</translation>
    </message>
    <message>
        <source>Purpose? - Find an endpoint or See the curve</source>
        <translation>Zweck? – Einen Endpunkt finden oder die Kurve sehen</translation>
    </message>
    <message>
        <source>The purpose may be confusing to some.  The best way to deal with this is a circle dy/dx = -x/y.  If you started at (4,3) and wanted a y value at x=6 using 3 steps, you would get a value.  If you followed the slope field you shouldn&apos;t get there since the radius is 5.  The circle would not have an x=6.  Finding the approximation is achieved since you do not hit a vertical slope and delta x stays positive making the slope change orientation(it goes up-right instead of down-left).  This should graph a &apos;V&apos; or non-differential point.  The smooth curve is achieved by using dy and dx separately in a vector plot.  The delta x is no longer the change in x.  Delta x is the length of each the vector used in plotting the curve.</source>
        <translation>Der Zweck mag manche verwirren. Am besten zeigt man ihn an einem Kreis dy/dx = -x/y. Wenn Sie bei (4,3) beginnen und einen y-Wert bei x=6 mit 3 Schritten möchten, erhalten Sie einen Wert. Folgten Sie dem Richtungsfeld, kämen Sie dort nicht hin, da der Radius 5 ist. Der Kreis hätte kein x=6. Die Näherung gelingt, weil man keine senkrechte Steigung trifft und Delta x positiv bleibt, wodurch die Steigung ihre Richtung wechselt (es geht nach rechts oben statt nach links unten). Das sollte ein „V“ oder eine nicht differenzierbare Stelle zeichnen. Die glatte Kurve entsteht, indem dy und dx getrennt in einer Vektordarstellung benutzt werden. Delta x ist dann nicht mehr die Änderung von x. Delta x ist die Länge jedes Vektors, mit dem die Kurve gezeichnet wird.</translation>
    </message>
    <message>
        <source>I want an exact point to Start?</source>
        <translation>Ich möchte an einem genauen Punkt beginnen?</translation>
    </message>
    <message>
        <source>You may not be able to move the cursor to the point you want.  You may click on the Start(___,___) label box to enter your points.  As soon as you enter the y coordinate the graph will show your plot and the endpoint will show the final value.  If your plot goes off the graph window the program at that point for your endpoint.  Change the window so it will fit.</source>
        <translation>Vielleicht können Sie den Mauszeiger nicht genau auf den gewünschten Punkt bewegen. Sie können auf das Feld Start(___,___) klicken, um Ihre Punkte einzugeben. Sobald Sie die y-Koordinate eingegeben haben, zeigt der Graph Ihre Kurve und der Endpunkt den Endwert. Verlässt Ihre Kurve das Grafikfenster, hält das Programm dort für Ihren Endpunkt an. Ändern Sie das Fenster so, dass sie hineinpasst.</translation>
    </message>
    <message>
        <source>Plotto!</source>
        <translation>Plotto!</translation>
    </message>
    <message>
        <source>Clicking on [Plotto] will set in motion the plotting of the integral curves from 20 points on the x-axis and 20 points on the y-axis.  These would be at the integer points for the default -10 by 10 screen.  You may shift these points by entering a value in the Horizontal Shift or Vertical Shift boxes at the right.  You may also make the plotting Bi-Directional by checking that box.  You may have to wait for the screen to change since it will graph all at once.</source>
        <translation>Ein Klick auf [Plotto] startet das Zeichnen der Integralkurven von 20 Punkten auf der x-Achse und 20 Punkten auf der y-Achse. Diese liegen beim voreingestellten Bildschirm von -10 bis 10 auf den ganzzahligen Punkten. Sie können diese Punkte verschieben, indem Sie rechts einen Wert in die Felder Waagrechte Verschiebung oder Senkrechte Verschiebung eingeben. Sie können das Zeichnen auch in beide Richtungen erfolgen lassen, indem Sie dieses Kästchen ankreuzen. Eventuell müssen Sie warten, bis sich der Bildschirm ändert, da alles auf einmal gezeichnet wird.</translation>
    </message>
    <message>
        <source>Typed rates: %1; %2.</source>
        <translation>Eingegebene Raten: %1; %2.</translation>
    </message>
    <message>
        <source>Rates: %1, that is dy = %2; %3, that is dx = %4.</source>
        <translation>Raten: %1, also dy = %2; %3, also dx = %4.</translation>
    </message>
    <message>
        <source>Purpose: approximation by %1, %2 %3.</source>
        <translation>Zweck: Näherung mit %1, %2 %3.</translation>
    </message>
    <message>
        <source>Purpose: smooth curves.</source>
        <translation>Zweck: glatte Kurven.</translation>
    </message>
    <message>
        <source>EndPt: the curve stops where dy/dx is undefined</source>
        <translation>Endpunkt: die Kurve endet, wo dy/dx nicht definiert ist</translation>
    </message>
    <message>
        <source>the slope field</source>
        <translation>das Richtungsfeld</translation>
    </message>
    <message>
        <source>an integral curve</source>
        <translation>eine Integralkurve</translation>
    </message>
    <message>
        <source>Slope Fields</source>
        <translation>Richtungsfelder</translation>
    </message>
    <message>
        <source>dy = Ax + By + C</source>
        <translation>dy = Ax + By + C</translation>
    </message>
    <message>
        <source>dx = Dx + Ey + F</source>
        <translation>dx = Dx + Ey + F</translation>
    </message>
    <message>
        <source>Click in the graph to generate an integral curve.</source>
        <translation>Klicken Sie in den Graphen, um eine Integralkurve zu erzeugen.</translation>
    </message>
    <message>
        <source>Start (____, ____)</source>
        <translation>Start (____, ____)</translation>
    </message>
    <message>
        <source>Endpt ( ____, ____ )</source>
        <translation>Endpunkt ( ____, ____ )</translation>
    </message>
    <message>
        <source>&amp;Show Slope Field</source>
        <translation>Richtungsfeld &amp;zeigen</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Zweck</translation>
    </message>
    <message>
        <source>Find &amp;Appoximation</source>
        <translation>&amp;Näherung finden</translation>
    </message>
    <message>
        <source>See smooth &amp;curve</source>
        <translation>Glatte &amp;Kurve zeigen</translation>
    </message>
    <message>
        <source>Method Options</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>Runga-Kutta &amp;4</source>
        <translation>Runge-Kutta &amp;4</translation>
    </message>
    <message>
        <source>Runga-Kutta &amp;2</source>
        <translation>Runge-Kutta &amp;2</translation>
    </message>
    <message>
        <source>Euler&apos;s Metho&amp;d</source>
        <translation>Euler-&amp;Verfahren</translation>
    </message>
    <message>
        <source>Plotto Options</source>
        <translation>Plotto-Optionen</translation>
    </message>
    <message>
        <source>Horizontal Shift</source>
        <translation>Waagrechte Verschiebung</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>Senkrechte Verschiebung</translation>
    </message>
    <message>
        <source>Bi-directional</source>
        <translation>In beide Richtungen</translation>
    </message>
    <message>
        <source>Number of Curve Points</source>
        <translation>Anzahl der Kurvenpunkte</translation>
    </message>
    <message>
        <source>Maximum of 10000 points</source>
        <translation>Höchstens 10000 Punkte</translation>
    </message>
    <message>
        <source>Delta x = </source>
        <translation>Delta x = </translation>
    </message>
    <message>
        <source>This value is used in Euler&apos;s Method to find succeeding points.</source>
        <translation>Dieser Wert wird beim Euler-Verfahren benutzt, um die folgenden Punkte zu finden.</translation>
    </message>
    <message>
        <source>Select d&amp;y - Function</source>
        <translation>d&amp;y-Funktion wählen</translation>
    </message>
    <message>
        <source>Select d&amp;x - Function</source>
        <translation>d&amp;x-Funktion wählen</translation>
    </message>
    <message>
        <source>Convergence of the step methods</source>
        <translation>Konvergenz der Schrittverfahren</translation>
    </message>
    <message>
        <source>Start x</source>
        <translation>Start x</translation>
    </message>
    <message>
        <source>Start y</source>
        <translation>Start y</translation>
    </message>
    <message>
        <source>End x</source>
        <translation>Ende x</translation>
    </message>
    <message>
        <source>Step h</source>
        <translation>Schrittweite h</translation>
    </message>
    <message>
        <source>Xmin</source>
        <translation>Xmin</translation>
    </message>
    <message>
        <source>Xmax</source>
        <translation>Xmax</translation>
    </message>
    <message>
        <source>Ymin</source>
        <translation>Ymin</translation>
    </message>
    <message>
        <source>Ymax</source>
        <translation>Ymax</translation>
    </message>
    <message>
        <source>Limits by Epsilon and Delta</source>
        <translation>Grenzwerte mit Epsilon und Delta</translation>
    </message>
    <message>
        <source>ε and δ</source>
        <translation>ε und δ</translation>
    </message>
    <message>
        <source>Find &amp;L</source>
        <translation>&amp;L finden</translation>
    </message>
    <message>
        <source>Fin&amp;d δ</source>
        <translation>&amp;δ finden</translation>
    </message>
    <message>
        <source>&amp;Halve ε</source>
        <translation>ε &amp;halbieren</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Epsilon and delta</source>
        <translation>Epsilon und Delta</translation>
    </message>
    <message>
        <source>Type a number for a.</source>
        <translation>Geben Sie eine Zahl für a ein.</translation>
    </message>
    <message>
        <source>   (the window&apos;s edge)</source>
        <translation>   (der Fensterrand)</translation>
    </message>
    <message>
        <source>near a</source>
        <translation>nahe a</translation>
    </message>
    <message>
        <source>(none in the window)</source>
        <translation>(keiner im Fenster)</translation>
    </message>
    <message>
        <source>the band L = %1 ± ε = %2 about a = %3 for %4</source>
        <translation>der Streifen L = %1 ± ε = %2 um a = %3 für %4</translation>
    </message>
    <message>
        <source>the point a</source>
        <translation>der Punkt a</translation>
    </message>
    <message>
        <source>This screen shows what the limit of f(x) as x approaches a means: for every ε &gt; 0 there is a δ &gt; 0 such that every x with 0 &lt; |x - a| &lt; δ has |f(x) - L| &lt; ε.  You choose ε; the screen finds the largest δ.</source>
        <translation>Dieser Bildschirm zeigt, was der Grenzwert von f(x) für x gegen a bedeutet: zu jedem ε &gt; 0 gibt es ein δ &gt; 0, sodass jedes x mit 0 &lt; |x - a| &lt; δ die Ungleichung |f(x) - L| &lt; ε erfüllt. Sie wählen ε; der Bildschirm findet das größte δ.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function (for instance sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) or sin(1/x)).  Type the point a (or click the green label a =: left button up by one, right button down) and the limit L, or press [Find L]: it looks at f(a - h) and f(a + h) as h halves forty times, down to about 1e-12 times max(1, |a|), and says whether both sides settle on one value (six values in a row agreeing to 1e-5), settle on different values, grow without bound or do not settle.</source>
        <translation>Wählen Sie eine Funktion aus dem Menü und wählen Sie A bis E, oder geben Sie eine mit Werkzeuge, Funktion eingeben ein (zum Beispiel sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) oder sin(1/x)). Geben Sie die Stelle a ein (oder klicken Sie auf die grüne Beschriftung a =: linke Maustaste um eins hoch, rechte runter) und den Grenzwert L, oder drücken Sie [L finden]: es betrachtet f(a - h) und f(a + h), während h vierzigmal halbiert wird, bis etwa 1e-12 mal max(1, |a|), und sagt, ob sich beide Seiten auf einen Wert einpendeln (sechs Werte in Folge, die auf 1e-5 übereinstimmen), auf verschiedene Werte einpendeln, unbeschränkt wachsen oder sich nicht einpendeln.</translation>
    </message>
    <message>
        <source>[Find δ] and [Halve ε]</source>
        <translation>[δ finden] und [ε halbieren]</translation>
    </message>
    <message>
        <source>[Find δ] shades the band L ± ε in green and the band a ± δ in cyan, with the largest δ for which the graph stays in the green band, and marks in red where the graph first leaves it.  [Halve ε] halves ε and looks again; clicking the green label ε = halves it with the left button and doubles it with the right.  Each ε adds a row to the table: ε, δ, δ/ε and where the graph leaves the band, so that you can watch δ shrink with ε.  Where points as close to a as the search looks leave the band, the screen says that no δ works for that ε: f has no limit at a, or L is not it.</source>
        <translation>[δ finden] schattiert den Streifen L ± ε grün und den Streifen a ± δ cyan, mit dem größten δ, für das der Graph im grünen Streifen bleibt, und markiert rot, wo der Graph ihn zuerst verlässt. [ε halbieren] halbiert ε und sucht erneut; ein Klick auf die grüne Beschriftung ε = halbiert es mit der linken Maustaste und verdoppelt es mit der rechten. Jedes ε fügt der Tabelle eine Zeile hinzu: ε, δ, δ/ε und wo der Graph den Streifen verlässt, sodass Sie zusehen können, wie δ mit ε schrumpft. Wo Punkte so nahe bei a, wie die Suche schaut, den Streifen verlassen, sagt der Bildschirm, dass kein δ für dieses ε passt: f hat keinen Grenzwert bei a, oder L ist es nicht.</translation>
    </message>
    <message>
        <source>How δ is found</source>
        <translation>Wie δ gefunden wird</translation>
    </message>
    <message>
        <source>This is a numerical search, not a proof.  On each side of a, f is checked at about 7000 points: a dense cluster from 1e-13 times max(1, |a|), 64 points between each distance and its double, and 4096 evenly spread to the window&apos;s edge.  Between the last point inside the band and the first outside, the search checks sixteen pieces again and again until δ is known to 1e-12 of itself.  Points where f is undefined are not in its domain and are left out.  A narrow spike between samples can be missed.</source>
        <translation>Dies ist eine numerische Suche, kein Beweis. Auf jeder Seite von a wird f an etwa 7000 Stellen geprüft: eine dichte Häufung ab 1e-13 mal max(1, |a|), 64 Stellen zwischen jedem Abstand und seinem Doppelten und 4096 gleichmäßig verteilt bis zum Fensterrand. Zwischen der letzten Stelle im Streifen und der ersten außerhalb prüft die Suche immer wieder sechzehn Teilstücke, bis δ auf 1e-12 seiner selbst bekannt ist. Stellen, an denen f nicht definiert ist, gehören nicht zum Definitionsbereich und werden ausgelassen. Eine schmale Spitze zwischen den Stichproben kann übersehen werden.</translation>
    </message>
    <message>
        <source>Holes and dots</source>
        <translation>Lücken und Punkte</translation>
    </message>
    <message>
        <source>A filled dot marks (a, f(a)) where f is defined at a; an open circle marks (a, L) where f(a) is undefined or differs from L.</source>
        <translation>Ein gefüllter Punkt markiert (a, f(a)), wo f bei a definiert ist; ein offener Kreis markiert (a, L), wo f(a) nicht definiert ist oder von L abweicht.</translation>
    </message>
    <message>
        <source>The Mean Value Theorem</source>
        <translation>Der Mittelwertsatz</translation>
    </message>
    <message>
        <source>MVT Set Up</source>
        <translation>Mittelwertsatz einrichten</translation>
    </message>
    <message>
        <source>Left endpt</source>
        <translation>Linker Endpunkt</translation>
    </message>
    <message>
        <source>Right endpt</source>
        <translation>Rechter Endpunkt</translation>
    </message>
    <message>
        <source>Apply to Graph</source>
        <translation>Auf Graph anwenden</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Steigung</translation>
    </message>
    <message>
        <source>Find c</source>
        <translation>c finden</translation>
    </message>
    <message>
        <source>Use the Slider</source>
        <translation>Schieberegler benutzen</translation>
    </message>
    <message>
        <source>Slope = </source>
        <translation>Steigung = </translation>
    </message>
    <message>
        <source>Values of c</source>
        <translation>Werte von c</translation>
    </message>
    <message>
        <source>the secant over [a, b]</source>
        <translation>die Sekante über [a, b]</translation>
    </message>
    <message>
        <source>ERROR!  0/0</source>
        <translation>FEHLER!  0/0</translation>
    </message>
    <message>
        <source>Enter an x value to check</source>
        <translation>Geben Sie einen x-Wert zum Prüfen ein</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>X eingeben</translation>
    </message>
    <message>
        <source>the points c</source>
        <translation>die Stellen c</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the Mean Value Theorem.  Most of the function selections are continuous so it may be applied to most of them, at least you can define a continuous interval.</source>
        <translation>Dieser Bildschirm veranschaulicht den Mittelwertsatz. Die meisten wählbaren Funktionen sind stetig, sodass er auf die meisten angewandt werden kann; zumindest lässt sich ein Intervall wählen, auf dem sie stetig sind.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>To get started, select a function from the pull down menu or click on the function to get another one.  Select the values for A to E for the function and [Plotto].  The right side of the screen is to setup the interval or a and b end points.  Once you have entered the end points, Click [Apply to Graph].  This will plot the line and calculate the points and slope.</source>
        <translation>Wählen Sie zu Beginn eine Funktion aus dem Menü oder klicken Sie auf die Funktion, um eine andere zu erhalten. Wählen Sie die Werte für A bis E und klicken Sie auf [Plotto]. Die rechte Seite des Bildschirms dient zum Einrichten des Intervalls, also der Endpunkte a und b. Wenn Sie die Endpunkte eingegeben haben, klicken Sie auf [Auf Graph anwenden]. Das zeichnet die Gerade und berechnet die Punkte und die Steigung.</translation>
    </message>
    <message>
        <source>Find c --- Three Ways</source>
        <translation>c finden --- auf drei Arten</translation>
    </message>
    <message>
        <source>There are many ways to find c, the value guaranteed by the MVT.  1)Use the Slider to approximate where c would be on the (a,b) interval.  Each time you move the slider or click on the arrow the tangent line will be graphed and its slope determined at the point.  You can keep moving the slider until the slope from the setup matches the slope at the point. 2) Click on the &apos;x =&apos; label.  You will be asked to enter a value for x.  The slider will automatically move to the point and show the tangent line and its slope.  3) Click on [Find c].  This button will find all points(up to 20) on the graph having the same slope as the secant line.  They are listed in a chart.</source>
        <translation>Es gibt viele Wege, c zu finden, den Wert, den der Mittelwertsatz garantiert. 1) Benutzen Sie den Schieberegler, um zu schätzen, wo c im Intervall (a,b) liegt. Jedes Mal, wenn Sie den Regler bewegen oder auf den Pfeil klicken, wird die Tangente gezeichnet und ihre Steigung an der Stelle bestimmt. Sie können den Regler bewegen, bis die Steigung aus der Einrichtung mit der Steigung an der Stelle übereinstimmt. 2) Klicken Sie auf die Beschriftung „x =“. Sie werden nach einem x-Wert gefragt. Der Regler springt automatisch an die Stelle und zeigt die Tangente und ihre Steigung. 3) Klicken Sie auf [c finden]. Diese Schaltfläche findet alle Stellen (bis zu 20) des Graphen mit derselben Steigung wie die Sekante. Sie werden in einer Tabelle aufgelistet.</translation>
    </message>
    <message>
        <source>Accuracy Problems</source>
        <translation>Genauigkeitsprobleme</translation>
    </message>
    <message>
        <source>There are some accuracy considerations when using [Find c].  The slopes are compared to the nearest 0.001.  The calculated slope from the end points may differ from the slope of the tangent line.  Some MVT points may be missed due the accuracy when scannning through the function for the points.  This usually does not happen unless your interval is wide and there are rapid fluctuations like sin(20x).</source>
        <translation>Bei [c finden] gibt es einige Genauigkeitsfragen. Die Steigungen werden auf 0,001 genau verglichen. Die aus den Endpunkten berechnete Steigung kann von der Steigung der Tangente abweichen. Manche Mittelwertstellen können wegen der Genauigkeit beim Absuchen der Funktion übersehen werden. Das geschieht meist nur, wenn Ihr Intervall breit ist und es schnelle Schwankungen wie bei sin(20x) gibt.</translation>
    </message>
    <message>
        <source>Secant from %1 to %2, %3.</source>
        <translation>Sekante von %1 bis %2, %3.</translation>
    </message>
    <message>
        <source>Slider point %1, %2.</source>
        <translation>Schiebereglerpunkt %1, %2.</translation>
    </message>
    <message>
        <source>Newton&apos;s Method and Derivatives</source>
        <translation>Newton-Verfahren und Ableitungen</translation>
    </message>
    <message>
        <source>Newton&apos;s Method</source>
        <translation>Newton-Verfahren</translation>
    </message>
    <message>
        <source>Guess:</source>
        <translation>Schätzwert:</translation>
    </message>
    <message>
        <source>Apply Newton&apos;s</source>
        <translation>Newton anwenden</translation>
    </message>
    <message>
        <source>Graph &amp;Derivative</source>
        <translation>&amp;Ableitung zeichnen</translation>
    </message>
    <message>
        <source>Guesses</source>
        <translation>Schätzwerte</translation>
    </message>
    <message>
        <source>Guess #</source>
        <translation>Schätzung Nr.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source> (no f(x) here)</source>
        <translation> (kein f(x) hier)</translation>
    </message>
    <message>
        <source> (no f&apos;(x) here)</source>
        <translation> (kein f&apos;(x) hier)</translation>
    </message>
    <message>
        <source> (too large)</source>
        <translation> (zu groß)</translation>
    </message>
    <message>
        <source>This guess failed due to zero for the slope</source>
        <translation>Dieser Schätzwert ist gescheitert, weil die Steigung null ist</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>the derivative of </source>
        <translation>die Ableitung von </translation>
    </message>
    <message>
        <source>This screen is used to demonstrate Newton&apos;s method for finding roots(x-intercepts) of functions.  Along the way you can graph the derivatives of functions too.</source>
        <translation>Dieser Bildschirm veranschaulicht das Newton-Verfahren zum Finden von Nullstellen (Schnittpunkten mit der x-Achse) von Funktionen. Nebenbei können Sie auch die Ableitungen von Funktionen zeichnen.</translation>
    </message>
    <message>
        <source>Newton&apos;s method simple takes a guess, uses the slope of the function at the (x={guess},y) point to plot where this tangent line will intercept the x-axis.  This becomes the second guess and is used in the same procedure to find the third and so on...  As your guesses get closer to the root, the function appears more linear like so you get very close.</source>
        <translation>Das Newton-Verfahren nimmt einfach einen Schätzwert und benutzt die Steigung der Funktion im Punkt (x={Schätzwert},y), um zu bestimmen, wo diese Tangente die x-Achse schneidet. Das wird der zweite Schätzwert, mit dem auf dieselbe Weise der dritte gefunden wird und so weiter... Je näher Ihre Schätzwerte an der Nullstelle liegen, desto geradliniger wirkt die Funktion, sodass Sie sehr nahe herankommen.</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Misserfolge</translation>
    </message>
    <message>
        <source>There may be some cases where Newton&apos;s Method fails.   This may be due to the nature of the function or the guess.</source>
        <translation>Es kann Fälle geben, in denen das Newton-Verfahren scheitert. Das kann an der Art der Funktion oder am Schätzwert liegen.</translation>
    </message>
    <message>
        <source>[Apply Newton&apos;s]</source>
        <translation>[Newton anwenden]</translation>
    </message>
    <message>
        <source>To try Newton&apos;s method: select a function and the variables A to E.  Select a first guess at the right.  Click [Apply Newton&apos;s].  You should see the line drawn from your (x-guess, y) to the x-axis.  The second guess will appear in the guess box so you can [Apply Newton&apos;s] again.</source>
        <translation>So probieren Sie das Newton-Verfahren aus: wählen Sie eine Funktion und die Variablen A bis E. Wählen Sie rechts einen ersten Schätzwert. Klicken Sie auf [Newton anwenden]. Sie sehen die Linie von Ihrem (x-Schätzwert, y) zur x-Achse. Der zweite Schätzwert erscheint im Schätzwertfeld, sodass Sie erneut [Newton anwenden] können.</translation>
    </message>
    <message>
        <source>Change and Continue</source>
        <translation>Ändern und weitermachen</translation>
    </message>
    <message>
        <source>Zoom in or change the window and Apply again.</source>
        <translation>Vergrößern Sie oder ändern Sie das Fenster und wenden Sie es erneut an.</translation>
    </message>
    <message>
        <source>the first guess</source>
        <translation>der erste Schätzwert</translation>
    </message>
    <message>
        <source>Parametric Equation graphing</source>
        <translation>Parameterkurven zeichnen</translation>
    </message>
    <message>
        <source>Select x &amp;&amp; y functions and enter their constants.</source>
        <translation>Wählen Sie die Funktionen x &amp;&amp; y und geben Sie ihre Konstanten ein.</translation>
    </message>
    <message>
        <source>Graphing Set up</source>
        <translation>Grafik einrichten</translation>
    </message>
    <message>
        <source>Initial  t =</source>
        <translation>Anfangs-t =</translation>
    </message>
    <message>
        <source>Final  t =</source>
        <translation>End-t =</translation>
    </message>
    <message>
        <source>Number of Steps</source>
        <translation>Anzahl der Schritte</translation>
    </message>
    <message>
        <source>Connected Points</source>
        <translation>Verbundene Punkte</translation>
    </message>
    <message>
        <source>Separate Points</source>
        <translation>Einzelne Punkte</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Verfolgen</translation>
    </message>
    <message>
        <source>Trace at t =</source>
        <translation>Verfolgen bei t =</translation>
    </message>
    <message>
        <source>t - slider</source>
        <translation>t-Schieberegler</translation>
    </message>
    <message>
        <source>Select &amp;x Function</source>
        <translation>&amp;x-Funktion wählen</translation>
    </message>
    <message>
        <source>Select &amp;y Function</source>
        <translation>&amp;y-Funktion wählen</translation>
    </message>
    <message>
        <source>The maximum number of steps is 32000</source>
        <translation>Die Höchstzahl der Schritte ist 32000</translation>
    </message>
    <message>
        <source>Exceeded Maximum</source>
        <translation>Höchstwert überschritten</translation>
    </message>
    <message>
        <source>the parametric curve</source>
        <translation>die Parameterkurve</translation>
    </message>
    <message>
        <source>Type a parametric curve</source>
        <translation>Eine Parameterkurve eingeben</translation>
    </message>
    <message>
        <source>This screen allows you to graph parametric equations by defining the function for the x value and another equation for the y value.  The x and y values are functions of the variable t.</source>
        <translation>Mit diesem Bildschirm können Sie Parametergleichungen zeichnen, indem Sie eine Funktion für den x-Wert und eine weitere Gleichung für den y-Wert festlegen. Die x- und y-Werte sind Funktionen der Variablen t.</translation>
    </message>
    <message>
        <source>How do I graph things?</source>
        <translation>Wie zeichne ich etwas?</translation>
    </message>
    <message>
        <source>After selecting the functions by using the pull down menus for the x and y functions, enter the values you want for A...F.  You may click [Plotto!] to see what it looks like.</source>
        <translation>Nachdem Sie die Funktionen über die Menüs für die x- und y-Funktionen gewählt haben, geben Sie die gewünschten Werte für A...F ein. Sie können auf [Plotto!] klicken, um zu sehen, wie es aussieht.</translation>
    </message>
    <message>
        <source>Graph Set Up</source>
        <translation>Grafik einrichten</translation>
    </message>
    <message>
        <source>Graphing Set Up at the right allows you to change the range of t, the number of steps used, and whether you want the points connected or not.  The initial set up is for a trig function and 1000 steps.  You may use any range and up to 32000 steps</source>
        <translation>Mit Grafik einrichten rechts können Sie den Bereich von t, die Anzahl der Schritte und die Verbindung der Punkte ändern. Voreingestellt sind eine trigonometrische Funktion und 1000 Schritte. Sie können jeden Bereich und bis zu 32000 Schritte verwenden</translation>
    </message>
    <message>
        <source>Trace?</source>
        <translation>Verfolgen?</translation>
    </message>
    <message>
        <source>Trace allows you to look at the point produced by any particular t value.  You may click in the box to change the value. As soon as you do you will see the (x,y) value below and the point appear on the graph.  You may also use the slider at the bottom to scroll to different values or even click on the slide or arrows to move the trace point on the graph.  THe slider does not show the t= value or change the box above it.</source>
        <translation>Mit Verfolgen sehen Sie den Punkt, der zu einem bestimmten t-Wert gehört. Sie können in das Feld klicken, um den Wert zu ändern. Sobald Sie das tun, sehen Sie darunter den (x,y)-Wert und den Punkt im Graphen. Sie können auch den Schieberegler unten benutzen, um zu anderen Werten zu gelangen, oder auf den Regler oder die Pfeile klicken, um den Verfolgungspunkt im Graphen zu bewegen. Der Regler zeigt den Wert t= nicht an und ändert das Feld darüber nicht.</translation>
    </message>
    <message>
        <source>Left or Right clicks</source>
        <translation>Links- oder Rechtsklicks</translation>
    </message>
    <message>
        <source>You may left click of right click on the labels for the entry boxes to raise of lower their values by 1.</source>
        <translation>Sie können mit links oder rechts auf die Beschriftungen der Eingabefelder klicken, um ihre Werte um 1 zu erhöhen oder zu verringern.</translation>
    </message>
    <message>
        <source>Change the size of the window?</source>
        <translation>Die Größe des Fensters ändern?</translation>
    </message>
    <message>
        <source>The buttons below [Plotto!] are what they say.  Zoom in will reduce the size by a factor of 2.  Zoom Out will enlarge the size by a factor of 2.  You may change the window size by clicking on any of the boxes showing teh ranges for x and y.</source>
        <translation>Die Schaltflächen unter [Plotto!] tun, was sie sagen. Vergrößern verkleinert den Bereich um den Faktor 2. Verkleinern vergrößert den Bereich um den Faktor 2. Sie können die Fenstergröße ändern, indem Sie auf eines der Felder mit den Bereichen für x und y klicken.</translation>
    </message>
    <message>
        <source>Parametric curve %1, %2 with A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</source>
        <translation>Parameterkurve %1, %2 mit A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</translation>
    </message>
    <message>
        <source>t from %1 to %2 in steps of %3, %4.</source>
        <translation>t von %1 bis %2 in %3 Schritten, %4.</translation>
    </message>
    <message>
        <source>connected points</source>
        <translation>verbundene Punkte</translation>
    </message>
    <message>
        <source>separate points</source>
        <translation>einzelne Punkte</translation>
    </message>
    <message>
        <source>Trace at t = %1: %2.</source>
        <translation>Verfolgen bei t = %1: %2.</translation>
    </message>
    <message>
        <source>the traced point</source>
        <translation>der verfolgte Punkt</translation>
    </message>
    <message>
        <source>Riemann and Other Sums</source>
        <translation>Riemann- und andere Summen</translation>
    </message>
    <message>
        <source>&amp;Select a Function</source>
        <translation>&amp;Funktion wählen</translation>
    </message>
    <message>
        <source>&amp;Clear Graph</source>
        <translation>Graph &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Set to Defaults</source>
        <translation>&amp;Standardwerte</translation>
    </message>
    <message>
        <source>Left Endpoint</source>
        <translation>Linker Endpunkt</translation>
    </message>
    <message>
        <source>Right Endpoint</source>
        <translation>Rechter Endpunkt</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Trapezoidal</source>
        <translation>Trapez</translation>
    </message>
    <message>
        <source>Random point</source>
        <translation>Zufälliger Punkt</translation>
    </message>
    <message>
        <source>A random point is picked on the equal width intervals </source>
        <translation>Auf den gleich breiten Teilintervallen wird ein zufälliger Punkt gewählt </translation>
    </message>
    <message>
        <source>Simpson&apos;s</source>
        <translation>Simpson</translation>
    </message>
    <message>
        <source>Riemann</source>
        <translation>Riemann</translation>
    </message>
    <message>
        <source>Random width Interval and point on it</source>
        <translation>Teilintervalle zufälliger Breite und ein Punkt darin</translation>
    </message>
    <message>
        <source>Cut the scale in half</source>
        <translation>Den Maßstab halbieren</translation>
    </message>
    <message>
        <source>Convergence of the sums</source>
        <translation>Konvergenz der Summen</translation>
    </message>
    <message>
        <source>&amp;Erase Partitions</source>
        <translation>Zerlegung l&amp;öschen</translation>
    </message>
    <message>
        <source>Number of Partitions</source>
        <translation>Anzahl der Teilintervalle</translation>
    </message>
    <message>
        <source>&amp;Double Partitions</source>
        <translation>Teilintervalle ver&amp;doppeln</translation>
    </message>
    <message>
        <source>Automatically double Number of Partitions</source>
        <translation>Anzahl der Teilintervalle automatisch verdoppeln</translation>
    </message>
    <message>
        <source>Graph &amp;Partitions</source>
        <translation>&amp;Zerlegung zeichnen</translation>
    </message>
    <message>
        <source>See the partitions from the Riemann Sums</source>
        <translation>Die Zerlegung der Riemann-Summen sehen</translation>
    </message>
    <message>
        <source>Left Boundary</source>
        <translation>Linke Grenze</translation>
    </message>
    <message>
        <source>Right Boundary</source>
        <translation>Rechte Grenze</translation>
    </message>
    <message>
        <source>AREA</source>
        <translation>FLÄCHE</translation>
    </message>
    <message>
        <source>Area Sums</source>
        <translation>Flächensummen</translation>
    </message>
    <message>
        <source>Check one to see partitions when clicking Graph Partitions</source>
        <translation>Eines ankreuzen, um beim Klick auf Zerlegung zeichnen die Teilintervalle zu sehen</translation>
    </message>
    <message>
        <source>Parts not even #</source>
        <translation>Anzahl nicht gerade</translation>
    </message>
    <message>
        <source>= error!</source>
        <translation>= Fehler!</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>= too large</source>
        <translation>= zu groß</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Partitions must be a positive number</source>
        <translation>Die Anzahl der Teilintervalle muss positiv sein</translation>
    </message>
    <message>
        <source>Positive only</source>
        <translation>Nur positiv</translation>
    </message>
    <message>
        <source>The limit to the number of partitions is 32000</source>
        <translation>Höchstens 32000 Teilintervalle</translation>
    </message>
    <message>
        <source>Limit Reached</source>
        <translation>Grenze erreicht</translation>
    </message>
    <message>
        <source>This form was written to demonstrate various Riemann and other Sums used to find areas under functions.</source>
        <translation>Dieses Formular zeigt verschiedene Riemann- und andere Summen, mit denen man Flächen unter Funktionsgraphen bestimmt.</translation>
    </message>
    <message>
        <source>Plotting a function and Sizing</source>
        <translation>Eine Funktion zeichnen und die Größe einstellen</translation>
    </message>
    <message>
        <source>Select a Function from the functions menu.  Click [Plotto!] to see it in the window.  Set the window size by entering values for Xmin, Xmax, Ymin, and Ymax or in the boxes around the window.</source>
        <translation>Wählen Sie eine Funktion aus dem Funktionsmenü. Klicken Sie auf [Plotto!], um sie im Fenster zu sehen. Stellen Sie die Fenstergröße ein, indem Sie Werte für Xmin, Xmax, Ymin und Ymax oder in die Felder um das Fenster eingeben.</translation>
    </message>
    <message>
        <source>Plotto! , Zoom In and Set to Defaults</source>
        <translation>Plotto! , Vergrößern und Standardwerte</translation>
    </message>
    <message>
        <source>You must [Plotto!] after selecting a function to see it.  This also clears the window.  The [Zoom In] button reduces each edge in half and re-graphs the function. The [Set to Defaults] are -10 by 10.</source>
        <translation>Sie müssen nach der Wahl einer Funktion [Plotto!] drücken, um sie zu sehen. Das löscht auch das Fenster. Die Schaltfläche [Vergrößern] halbiert jede Kante und zeichnet die Funktion neu. Die [Standardwerte] sind -10 bis 10.</translation>
    </message>
    <message>
        <source>Riemann choices and [Graph Partitions]</source>
        <translation>Riemann-Auswahl und [Zerlegung zeichnen]</translation>
    </message>
    <message>
        <source>Check the box for a Riemann Sum method at the right.  The rectangles and the computed areas will appear after clicking the [Graph Partitions] Button.  You may click one, many or all the check boxes to see the various area values.</source>
        <translation>Kreuzen Sie rechts das Kästchen eines Verfahrens für Riemann-Summen an. Die Rechtecke und die berechneten Flächen erscheinen nach einem Klick auf die Schaltfläche [Zerlegung zeichnen]. Sie können ein, mehrere oder alle Kästchen ankreuzen, um die verschiedenen Flächenwerte zu sehen.</translation>
    </message>
    <message>
        <source>Partitions for the Riemann Sums</source>
        <translation>Teilintervalle für die Riemann-Summen</translation>
    </message>
    <message>
        <source>You may type in up to 32000 for the number of partitions.  You may also automatically double the number of partitions with the [Double Partitions] button.  The number of partitions determines the width of each interval except for the Riemann method.  The Riemann method breaks the total interval into random width sub-intervals and selects random points in each sub-interval.  The Riemann method only uses a maximum of 2000 partitions.</source>
        <translation>Sie können bis zu 32000 als Anzahl der Teilintervalle eingeben. Mit der Schaltfläche [Teilintervalle verdoppeln] können Sie die Anzahl auch automatisch verdoppeln. Die Anzahl der Teilintervalle bestimmt die Breite jedes Intervalls, außer beim Riemann-Verfahren. Das Riemann-Verfahren zerlegt das Gesamtintervall in Teilintervalle zufälliger Breite und wählt in jedem einen zufälligen Punkt. Das Riemann-Verfahren benutzt höchstens 2000 Teilintervalle.</translation>
    </message>
    <message>
        <source>Left and Right Boundaries</source>
        <translation>Linke und rechte Grenze</translation>
    </message>
    <message>
        <source>The Left boundary and Right boundary determine the width of the interval for the area.  The Boundaries must be in the window.  If the y value is outside the window the partition will not show up on the graph but the area will be computed correctly.</source>
        <translation>Die linke und die rechte Grenze bestimmen die Breite des Intervalls für die Fläche. Die Grenzen müssen im Fenster liegen. Liegt der y-Wert außerhalb des Fensters, erscheint das Teilintervall nicht im Graphen, die Fläche wird aber richtig berechnet.</translation>
    </message>
    <message>
        <source>Clicking light green labels</source>
        <translation>Hellgrüne Beschriftungen anklicken</translation>
    </message>
    <message>
        <source>As for most of the light green labels in this program, you may left click to increase the box by one or right click to decreased it by one.</source>
        <translation>Wie bei den meisten hellgrünen Beschriftungen in diesem Programm können Sie mit einem Linksklick das Feld um eins erhöhen oder mit einem Rechtsklick um eins verringern.</translation>
    </message>
    <message>
        <source>Area under %1 from %2 to %3 with %4 partitions: %5.</source>
        <translation>Fläche unter %1 von %2 bis %3 mit %4 Teilintervallen: %5.</translation>
    </message>
    <message>
        <source>The Tangent Line Problem</source>
        <translation>Das Tangentenproblem</translation>
    </message>
    <message>
        <source>Tangent Problem Set up</source>
        <translation>Tangentenproblem einrichten</translation>
    </message>
    <message>
        <source>Tangent at x =</source>
        <translation>Tangente bei x =</translation>
    </message>
    <message>
        <source>Delta x</source>
        <translation>Delta x</translation>
    </message>
    <message>
        <source>&amp;Apply to graph</source>
        <translation>Auf Graph &amp;anwenden</translation>
    </message>
    <message>
        <source>Half Delta x</source>
        <translation>Delta x halbieren</translation>
    </message>
    <message>
        <source>Delta X slider</source>
        <translation>Delta-x-Schieberegler</translation>
    </message>
    <message>
        <source>x-dx</source>
        <translation>x-dx</translation>
    </message>
    <message>
        <source>x+dx</source>
        <translation>x+dx</translation>
    </message>
    <message>
        <source>Secant Line Results</source>
        <translation>Ergebnisse der Sekante</translation>
    </message>
    <message>
        <source>( ___, ___ ) to ( ___ , ___ )</source>
        <translation>( ___, ___ ) bis ( ___ , ___ )</translation>
    </message>
    <message>
        <source>Line Equation</source>
        <translation>Geradengleichung</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the classic slope of the tangent line problem.  You may select any function from the menu.  Choose values for the A,B,...,E variables for your function and Plotto.</source>
        <translation>Dieser Bildschirm veranschaulicht das klassische Problem der Tangentensteigung. Sie können jede Funktion aus dem Menü wählen. Wählen Sie Werte für die Variablen A,B,...,E Ihrer Funktion und klicken Sie auf Plotto.</translation>
    </message>
    <message>
        <source>Tangent Set up Selections</source>
        <translation>Auswahl zum Tangentenproblem</translation>
    </message>
    <message>
        <source>The secant lines will be graphed using the buttons, text boxes and glider at the right.  Select the initial point for the secant line by placing a value in the &apos;Tangent at x =&apos; box.  Choose the Delta x.  This the distance from your choice of x and is the longest distance for the slider.  The delta x may be negative.  The slider may be scrolled to either side of your initial x.</source>
        <translation>Die Sekanten werden mit den Schaltflächen, Eingabefeldern und dem Schieberegler rechts gezeichnet. Wählen Sie den Anfangspunkt der Sekante, indem Sie einen Wert in das Feld „Tangente bei x =“ eingeben. Wählen Sie Delta x. Das ist der Abstand von Ihrem gewählten x und der größte Abstand für den Schieberegler. Delta x darf negativ sein. Der Regler kann zu beiden Seiten Ihres Anfangs-x geschoben werden.</translation>
    </message>
    <message>
        <source>Show the secants and the results</source>
        <translation>Die Sekanten und die Ergebnisse zeigen</translation>
    </message>
    <message>
        <source>Clicking on [Apply It] will draw the secant line and show the points on the graph and the equation of the line.  If you click on [Half Delta x], your delta x will be cut in half.  You may click [Apply It] to see the new line.</source>
        <translation>Ein Klick auf [Anwenden] zeichnet die Sekante und zeigt die Punkte im Graphen und die Geradengleichung. Wenn Sie auf [Delta x halbieren] klicken, wird Ihr Delta x halbiert. Sie können [Anwenden] klicken, um die neue Gerade zu sehen.</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <source>Clicking or scrolling the slider will change delta x and graph the secant line when releasing the mouse button.  You may see the points and the equation for each new change of the slider.  Notice the x-dx, x=  , and x+dx at the bottom of the slider.  This should help to know which way your secant line is going.</source>
        <translation>Ein Klick auf den Schieberegler oder sein Verschieben ändert Delta x und zeichnet beim Loslassen der Maustaste die Sekante. Sie sehen die Punkte und die Gleichung bei jeder neuen Änderung des Reglers. Beachten Sie x-dx, x=  und x+dx unter dem Regler. Das hilft zu erkennen, in welche Richtung Ihre Sekante geht.</translation>
    </message>
    <message>
        <source>No exact tangent: x = %1 is not a number.</source>
        <translation>Keine exakte Tangente: x = %1 ist keine Zahl.</translation>
    </message>
    <message>
        <source>The tangent at x = %1 has no slope there.</source>
        <translation>Die Tangente bei x = %1 hat dort keine Steigung.</translation>
    </message>
    <message>
        <source>The exact tangent at x = %1: y = %2x + %3.</source>
        <translation>Die exakte Tangente bei x = %1: y = %2x + %3.</translation>
    </message>
    <message>
        <source>the point of tangency</source>
        <translation>der Berührpunkt</translation>
    </message>
    <message>
        <source>the point at x + Delta x</source>
        <translation>der Punkt bei x + Delta x</translation>
    </message>
    <message>
        <source>Taylor Polynomials</source>
        <translation>Taylorpolynome</translation>
    </message>
    <message>
        <source>Centre a =</source>
        <translation>Entwicklungsstelle a =</translation>
    </message>
    <message>
        <source>&amp;Add a Term</source>
        <translation>Term &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Remo&amp;ve a Term</source>
        <translation>Term &amp;entfernen</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Degree: none</source>
        <translation>Grad: keiner</translation>
    </message>
    <message>
        <source>at x =</source>
        <translation>bei x =</translation>
    </message>
    <message>
        <source>&amp;Lagrange bound</source>
        <translation>&amp;Lagrange-Schranke</translation>
    </message>
    <message>
        <source>Taylor terms</source>
        <translation>Taylor-Terme</translation>
    </message>
    <message>
        <source>family %1</source>
        <translation>Familie %1</translation>
    </message>
    <message>
        <source>No Taylor polynomial of degree %1 about a = %2: %3.</source>
        <translation>Kein Taylorpolynom vom Grad %1 um a = %2: %3.</translation>
    </message>
    <message>
        <source>P_%1 about a = %2 in red%3; the green band on the x axis is where |f - P_%1| &lt; %4.</source>
        <translation>P_%1 um a = %2 in Rot%3; das grüne Band auf der x-Achse zeigt, wo |f - P_%1| &lt; %4 ist.</translation>
    </message>
    <message>
        <source>, P_%1 faint</source>
        <translation>, P_%1 blass</translation>
    </message>
    <message>
        <source> Degree %1 is the last this screen works out.</source>
        <translation> Grad %1 ist der letzte, den dieser Bildschirm berechnet.</translation>
    </message>
    <message>
        <source>the Taylor polynomial of degree %1 about %2 of %3</source>
        <translation>das Taylorpolynom vom Grad %1 um %2 von %3</translation>
    </message>
    <message>
        <source>Degree: %1</source>
        <translation>Grad: %1</translation>
    </message>
    <message>
        <source> At x = %1 the new term is past double precision: it changes no digit of P_%2 a double can hold.</source>
        <translation> Bei x = %1 liegt der neue Term jenseits doppelter Genauigkeit: er ändert keine Ziffer von P_%2, die ein Double darstellen kann.</translation>
    </message>
    <message>
        <source>past double precision</source>
        <translation>jenseits doppelter Genauigkeit</translation>
    </message>
    <message>
        <source>the centre a</source>
        <translation>die Entwicklungsstelle a</translation>
    </message>
    <message>
        <source>Degree %1. Terms: </source>
        <translation>Grad %1. Terme: </translation>
    </message>
    <message>
        <source>This screen builds the Taylor polynomial of a function about a centre a one term at a time, so that you can see the polynomial hug the curve over a wider and wider stretch as the degree grows.</source>
        <translation>Dieser Bildschirm baut das Taylorpolynom einer Funktion um eine Entwicklungsstelle a Term für Term auf, sodass Sie sehen, wie sich das Polynom mit wachsendem Grad über einen immer breiteren Bereich an die Kurve schmiegt.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function.  Type the centre a in its box, or click the green label to move it by one (left button up, right button down).</source>
        <translation>Wählen Sie eine Funktion aus dem Menü und wählen Sie A bis E, oder geben Sie eine mit Werkzeuge, Funktion eingeben ein. Geben Sie die Entwicklungsstelle a in ihr Feld ein oder klicken Sie auf die grüne Beschriftung, um sie um eins zu verschieben (linke Maustaste hoch, rechte runter).</translation>
    </message>
    <message>
        <source>[Add a Term] and [Remove a Term]</source>
        <translation>[Term hinzufügen] und [Term entfernen]</translation>
    </message>
    <message>
        <source>Each click of [Add a Term] adds the next term, f^(n)(a)(x - a)^n / n!.  The function is drawn in blue, the polynomial of the degree shown in red and the one before it in light red.  [Remove a Term] goes back a degree.</source>
        <translation>Jeder Klick auf [Term hinzufügen] fügt den nächsten Term f^(n)(a)(x - a)^n / n! hinzu. Die Funktion wird blau gezeichnet, das Polynom des angezeigten Grades rot und das vorige hellrot. [Term entfernen] geht einen Grad zurück.</translation>
    </message>
    <message>
        <source>The light green band along the x axis marks where the polynomial is within the tolerance of the function.  Watch it widen as terms are added.</source>
        <translation>Das hellgrüne Band entlang der x-Achse markiert, wo das Polynom innerhalb der Toleranz der Funktion liegt. Sehen Sie zu, wie es breiter wird, wenn Terme hinzukommen.</translation>
    </message>
    <message>
        <source>The grid</source>
        <translation>Die Tabelle</translation>
    </message>
    <message>
        <source>Each row is a degree: its new term with exact coefficients where they are fractions, the polynomial&apos;s value at the x you choose above the grid, and the error f(x) - P(x).  Tick Lagrange bound to see how large the error can be at most.  Where a derivative does not exist at a, or the numbers outgrow the computer&apos;s precision, the grid says so in words.</source>
        <translation>Jede Zeile ist ein Grad: ihr neuer Term mit exakten Koeffizienten, wo diese Brüche sind, der Wert des Polynoms an dem x, das Sie über der Tabelle wählen, und der Fehler f(x) - P(x). Kreuzen Sie Lagrange-Schranke an, um zu sehen, wie groß der Fehler höchstens sein kann. Wo eine Ableitung bei a nicht existiert oder die Zahlen die Genauigkeit des Computers übersteigen, sagt die Tabelle das in Worten.</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums + Others</source>
        <translation>&amp;Riemann-Summen und andere</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums +</source>
        <translation>&amp;Riemann-Summen +</translation>
    </message>
    <message>
        <source>Riemann and other sums</source>
        <translation>Riemann- und andere Summen</translation>
    </message>
    <message>
        <source>Graph Classes of &amp;Functions</source>
        <translation>&amp;Funktionsklassen zeichnen</translation>
    </message>
    <message>
        <source>&amp;Function Grapher</source>
        <translation>&amp;Funktionsplotter</translation>
    </message>
    <message>
        <source>graphing {families} families of functions</source>
        <translation>Zeichnen von {families} Funktionsfamilien</translation>
    </message>
    <message>
        <source>&amp;Animate Graphs</source>
        <translation>Graphen &amp;animieren</translation>
    </message>
    <message>
        <source>&amp;Animate Functions</source>
        <translation>Funktionen &amp;animieren</translation>
    </message>
    <message>
        <source>animating their coefficients</source>
        <translation>Animieren ihrer Koeffizienten</translation>
    </message>
    <message>
        <source>&amp;Slope Fields</source>
        <translation>Richtungsf&amp;elder</translation>
    </message>
    <message>
        <source>slope fields with integral curves and Euler and Runge-Kutta approximations</source>
        <translation>Richtungsfelder mit Integralkurven und Näherungen nach Euler und Runge-Kutta</translation>
    </message>
    <message>
        <source>&amp;Newton&apos;s Method</source>
        <translation>&amp;Newton-Verfahren</translation>
    </message>
    <message>
        <source>Newton&apos;s method</source>
        <translation>das Newton-Verfahren</translation>
    </message>
    <message>
        <source>&amp;Tangent Line Problem</source>
        <translation>&amp;Tangentenproblem</translation>
    </message>
    <message>
        <source>&amp;Tangent Problem</source>
        <translation>&amp;Tangentenproblem</translation>
    </message>
    <message>
        <source>secant lines converging to the tangent</source>
        <translation>Sekanten, die gegen die Tangente konvergieren</translation>
    </message>
    <message>
        <source>The &amp;Mean Value Theorem</source>
        <translation>Der &amp;Mittelwertsatz</translation>
    </message>
    <message>
        <source>&amp;Mean Value Theorem</source>
        <translation>&amp;Mittelwertsatz</translation>
    </message>
    <message>
        <source>the mean value theorem</source>
        <translation>den Mittelwertsatz</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphing</source>
        <translation>&amp;Parameterdarstellung</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphs</source>
        <translation>&amp;Parameterkurven</translation>
    </message>
    <message>
        <source>parametric curves</source>
        <translation>Parameterkurven</translation>
    </message>
    <message>
        <source>&amp;Taylor Polynomials</source>
        <translation>&amp;Taylorpolynome</translation>
    </message>
    <message>
        <source>Taylor polynomials term by term</source>
        <translation>Taylorpolynome Term für Term</translation>
    </message>
    <message>
        <source>&amp;Area Between Curves</source>
        <translation>&amp;Fläche zwischen Kurven</translation>
    </message>
    <message>
        <source>the area between two curves</source>
        <translation>die Fläche zwischen zwei Kurven</translation>
    </message>
    <message>
        <source>&amp;Limits by Epsilon and Delta</source>
        <translation>&amp;Grenzwerte mit Epsilon und Delta</translation>
    </message>
    <message>
        <source>limits by epsilon and delta</source>
        <translation>Grenzwerte mit Epsilon und Delta</translation>
    </message>
    <message>
        <source>Plotto!   Calculus Calculator</source>
        <translation>Plotto!   Analysis-Rechner</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Selections</source>
        <translation>&amp;Auswahl</translation>
    </message>
    <message>
        <source>More &amp;Demonstrations</source>
        <translation>&amp;Mehr Demonstrationen</translation>
    </message>
    <message>
        <source>Choose a demonstration</source>
        <translation>Wählen Sie eine Demonstration</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>The screens you open from now on speak this language; the launcher does from the next start of Plotto.</source>
        <translation>Die Bildschirme, die Sie ab jetzt öffnen, sprechen diese Sprache; das Startfenster beim nächsten Start von Plotto.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>This program was made to graphically illustrate a few Calculus concepts.  They are shown on the buttons and the pull down menu.  The &apos;About&apos; menu option for each screen will explain the use of that screen.</source>
        <translation>Dieses Programm wurde gemacht, um einige Begriffe der Analysis grafisch zu veranschaulichen. Sie stehen auf den Schaltflächen und im Menü. Der Menüpunkt „Info“ jedes Bildschirms erklärt, wie dieser Bildschirm benutzt wird.</translation>
    </message>
    <message>
        <source>Calculus Demonstrations</source>
        <translation>Analysis-Demonstrationen</translation>
    </message>
    <message>
        <source>This program is free.  Give it to your Calculus students or whoever could benefit from its use.  Send your questions and suggestions to the Plotto issue tracker.</source>
        <translation>Dieses Programm ist frei. Geben Sie es Ihren Analysis-Schülern oder allen, denen es nützen kann. Senden Sie Ihre Fragen und Vorschläge an den Issue-Tracker von Plotto.</translation>
    </message>
    <message>
        <source>Distribute Freely</source>
        <translation>Frei weitergeben</translation>
    </message>
    <message>
        <source>Read the ABOUTs on each screen.  There are handy things to know about clicking labels on the screens.....</source>
        <translation>Lesen Sie die Info auf jedem Bildschirm. Es gibt nützliche Hinweise zum Anklicken der Beschriftungen auf den Bildschirmen.....</translation>
    </message>
    <message>
        <source>More ABOUTs</source>
        <translation>Weitere Infos</translation>
    </message>
    <message>
        <source>&amp;Lessons</source>
        <translation>&amp;Lektionen</translation>
    </message>
    <message>
        <source>S&amp;tart the Lesson</source>
        <translation>Lektion s&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;Examples</source>
        <translation>&amp;Beispiele</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <source>Open Lesson</source>
        <translation>Lektion öffnen</translation>
    </message>
    <message>
        <source>%1: step %2 (%3): %4.</source>
        <translation>%1: Schritt %2 (%3): %4.</translation>
    </message>
    <message>
        <source>Buttons to press when this step opens, by their captions, separated by commas (a button pressed more than once: Apply Newton&apos;s*4). Leave empty for none.</source>
        <translation>Beim Öffnen dieses Schritts zu drückende Schaltflächen, nach ihren Beschriftungen, durch Kommas getrennt (eine mehrmals gedrückte Schaltfläche: Newton anwenden*4). Leer lassen für keine.</translation>
    </message>
    <message>
        <source>Add to the Lesson</source>
        <translation>Zur Lektion hinzufügen</translation>
    </message>
    <message>
        <source>The lesson has no steps yet: add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>Die Lektion hat noch keine Schritte: fügen Sie mit Werkzeuge, Diesen Bildschirm zur Lektion hinzufügen, einen Bildschirm hinzu.</translation>
    </message>
    <message>
        <source>Save Lesson</source>
        <translation>Lektion speichern</translation>
    </message>
    <message>
        <source>Cannot read the lesson %1: %2</source>
        <translation>Die Lektion %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Export Lesson as Worksheet</source>
        <translation>Lektion als Arbeitsblatt exportieren</translation>
    </message>
    <message>
        <source>There is no lesson to export: open one with Lessons, Open Lesson, or add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>Es gibt keine Lektion zum Exportieren: öffnen Sie eine mit Lektionen, Lektion öffnen, oder fügen Sie mit Werkzeuge, Diesen Bildschirm zur Lektion hinzufügen, einen Bildschirm hinzu.</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Leave the results blank, as boxes for the students to fill in? The answers then go to a second file, %1.</source>
        <translation>Die Ergebnisse leer lassen, als Kästchen zum Ausfüllen für die Schüler? Die Lösungen kommen dann in eine zweite Datei, %1.</translation>
    </message>
    <message>
        <source>The lesson could not be handed over: %1</source>
        <translation>Die Lektion konnte nicht übergeben werden: %1</translation>
    </message>
    <message>
        <source>The worksheet was not written: %1</source>
        <translation>Das Arbeitsblatt wurde nicht geschrieben: %1</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
    <message>
        <source>This step cannot be shown: %1.</source>
        <translation>Dieser Schritt kann nicht gezeigt werden: %1.</translation>
    </message>
    <message>
        <source>A button of this step could not finish (run-time error %1).</source>
        <translation>Eine Schaltfläche dieses Schritts konnte nicht beendet werden (Laufzeitfehler %1).</translation>
    </message>
    <message>
        <source>The screen shows %1.</source>
        <translation>Der Bildschirm zeigt %1.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>The lesson has no steps.</source>
        <translation>Die Lektion hat keine Schritte.</translation>
    </message>
    <message>
        <source>Area=</source>
        <translation>Fläche=</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .csv or .pdf.</source>
        <translation>Der Dateiname %1 sagt nicht, welche Art von Datei geschrieben werden soll: Er muss auf .csv oder .pdf enden.</translation>
    </message>
    <message>
        <source>the PDF could not be started</source>
        <translation>die PDF-Datei konnte nicht begonnen werden</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;PDF page (*.pdf)</source>
        <translation>Kommagetrennte Werte (*.csv);;PDF-Seite (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Export Table...</source>
        <translation>Tabelle &amp;exportieren...</translation>
    </message>
    <message>
        <source>Two Curves</source>
        <translation>Zwei Kurven</translation>
    </message>
    <message>
        <source>Worksheets are written by the plotto program, which this run cannot start.</source>
        <translation>Arbeitsblätter schreibt das Programm plotto, das dieser Lauf nicht starten kann.</translation>
    </message>
    <message>
        <source>are outside what a function accepts</source>
        <translation>liegen außerhalb dessen, was eine Funktion annimmt</translation>
    </message>
    <message>
        <source>overflow</source>
        <translation>laufen über</translation>
    </message>
    <message>
        <source>go past the end of a table</source>
        <translation>reichen über das Ende einer Tabelle hinaus</translation>
    </message>
    <message>
        <source>divide by zero</source>
        <translation>teilen durch null</translation>
    </message>
    <message>
        <source>are not numbers</source>
        <translation>sind keine Zahlen</translation>
    </message>
    <message>
        <source>are more than a control can take</source>
        <translation>sind mehr, als ein Steuerelement aufnehmen kann</translation>
    </message>
    <message>
        <source>cannot be worked out</source>
        <translation>lassen sich nicht berechnen</translation>
    </message>
    <message>
        <source>The step of the lesson shown</source>
        <translation>Der gezeigte Schritt der Lektion</translation>
    </message>
    <message>
        <source>Zoom to the &amp;Steps</source>
        <translation>Auf die &amp;Schritte zoomen</translation>
    </message>
    <message>
        <source>The last two guesses are %1 apart; View, Zoom to the Steps shows the last steps.</source>
        <translation>Die letzten beiden Schätzwerte liegen %1 auseinander; Ansicht, Auf die Schritte zoomen zeigt die letzten Schritte.</translation>
    </message>
    <message>
        <source>No steps to zoom to yet: press Apply Newton&apos;s at least once.</source>
        <translation>Noch keine Schritte zum Zoomen: Drücken Sie mindestens einmal Newton anwenden.</translation>
    </message>
    <message>
        <source>Step %1 cannot be shown: its values %2 (run-time error %3).</source>
        <translation>Schritt %1 kann nicht gezeigt werden: seine Werte %2 (Laufzeitfehler %3).</translation>
    </message>
    <message>
        <source>Euler</source>
        <translation>Euler</translation>
    </message>
    <message>
        <source>Runge-Kutta 2</source>
        <translation>Runge-Kutta 2</translation>
    </message>
    <message>
        <source>Runge-Kutta 4</source>
        <translation>Runge-Kutta 4</translation>
    </message>
    <message>
        <source>nothing typed: type a function, for example x^2 - 4 at %1</source>
        <translation>nichts eingegeben: geben Sie eine Funktion ein, zum Beispiel x^2 - 4 an Stelle %1</translation>
    </message>
    <message>
        <source>unexpected &apos;)&apos; at %1</source>
        <translation>unerwartetes &apos;)&apos; an Stelle %1</translation>
    </message>
    <message>
        <source>too deeply nested at %1</source>
        <translation>zu tief verschachtelt an Stelle %1</translation>
    </message>
    <message>
        <source>missing a term after &apos;%1&apos; at %2</source>
        <translation>nach &apos;%1&apos; fehlt ein Term an Stelle %2</translation>
    </message>
    <message>
        <source>missing a term at %1</source>
        <translation>ein Term fehlt an Stelle %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;)&apos; at %1</source>
        <translation>vor &apos;)&apos; fehlt ein Term an Stelle %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;%1&apos; at %2</source>
        <translation>vor &apos;%1&apos; fehlt ein Term an Stelle %2</translation>
    </message>
    <message>
        <source>missing &apos;)&apos; at %1</source>
        <translation>&apos;)&apos; fehlt an Stelle %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (each function takes one argument) at %1</source>
        <translation>unerwartetes &apos;,&apos; (jede Funktion hat ein Argument) an Stelle %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (write decimals with a point, and each function takes one argument) at %1</source>
        <translation>unerwartetes &apos;,&apos; (Dezimalzahlen mit Punkt schreiben; jede Funktion hat ein Argument) an Stelle %1</translation>
    </message>
    <message>
        <source>unexpected character &apos;%1&apos; at %2</source>
        <translation>unerwartetes Zeichen &apos;%1&apos; an Stelle %2</translation>
    </message>
    <message>
        <source>missing &apos;*&apos;: write %1*%2 for a product at %3</source>
        <translation>&apos;*&apos; fehlt: schreiben Sie %1*%2 für ein Produkt an Stelle %3</translation>
    </message>
    <message>
        <source>a number needs a digit at %1</source>
        <translation>eine Zahl braucht eine Ziffer an Stelle %1</translation>
    </message>
    <message>
        <source>number too large at %1</source>
        <translation>Zahl zu groß an Stelle %1</translation>
    </message>
    <message>
        <source>missing &apos;(&apos; after &apos;%1&apos; at %2</source>
        <translation>nach &apos;%1&apos; fehlt &apos;(&apos; an Stelle %2</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2 (the coefficients are the capitals A to F)</source>
        <translation>unbekannter Name &apos;%1&apos; an Stelle %2 (die Koeffizienten sind die Großbuchstaben A bis F)</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %4: write %2*%3 for a product</source>
        <translation>unbekannter Name &apos;%1&apos; an Stelle %4: schreiben Sie %2*%3 für ein Produkt</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2</source>
        <translation>unbekannter Name &apos;%1&apos; an Stelle %2</translation>
    </message>
    <message>
        <source>too long: at most %1 characters</source>
        <translation>zu lang: höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>cannot be evaluated</source>
        <translation>kann nicht ausgewertet werden</translation>
    </message>
    <message>
        <source>no derivative: it cannot be evaluated</source>
        <translation>keine Ableitung: sie kann nicht ausgewertet werden</translation>
    </message>
    <message>
        <source>no derivative: the expression is undefined everywhere or cannot be differentiated</source>
        <translation>keine Ableitung: der Ausdruck ist nirgends definiert oder nicht differenzierbar</translation>
    </message>
    <message>
        <source>no derivative: part of the expression is 0 where it divides or is a base</source>
        <translation>keine Ableitung: ein Teil des Ausdrucks ist 0, wo er teilt oder Basis ist</translation>
    </message>
    <message>
        <source>no derivative: it uses a function that cannot be differentiated here</source>
        <translation>keine Ableitung: sie verwendet eine Funktion, die hier nicht abgeleitet werden kann</translation>
    </message>
    <message>
        <source>no function chosen</source>
        <translation>keine Funktion gewählt</translation>
    </message>
    <message>
        <source>an exponent of %1 is too large to work out exactly</source>
        <translation>ein Exponent von %1 ist zu groß, um exakt gerechnet zu werden</translation>
    </message>
    <message>
        <source>part of the expression is 0 where it divides or is a base</source>
        <translation>ein Teil des Ausdrucks ist 0, wo er teilt oder Basis ist</translation>
    </message>
    <message>
        <source>the expression cannot be worked out exactly</source>
        <translation>der Ausdruck kann nicht exakt berechnet werden</translation>
    </message>
    <message>
        <source>the coefficient is too large for double precision</source>
        <translation>der Koeffizient ist zu groß für doppelte Genauigkeit</translation>
    </message>
    <message>
        <source>f(a) does not exist</source>
        <translation>f(a) existiert nicht</translation>
    </message>
    <message>
        <source>f^(%1)(a) does not exist</source>
        <translation>f^(%1)(a) existiert nicht</translation>
    </message>
    <message>
        <source>the derivative grows too long to work out</source>
        <translation>die Ableitung wird zu lang, um sie zu berechnen</translation>
    </message>
    <message>
        <source>a must be a number.</source>
        <translation>a muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Both sides tend to %1: L = %1 at a = %2 (estimated from x = a +- h, h halving to %3 times max(1, |a|); the last values agree to %4).</source>
        <translation>Beide Seiten streben gegen %1: L = %1 bei a = %2 (geschätzt aus x = a +- h, h halbiert bis %3 mal max(1, |a|); die letzten Werte stimmen bis auf %4 überein).</translation>
    </message>
    <message>
        <source>f is defined only on the right of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f ist nahe a nur rechts von a definiert; diese Seite strebt gegen %1: L = %1 bei a = %2 (ein einseitiger Grenzwert).</translation>
    </message>
    <message>
        <source>f is defined only on the left of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f ist nahe a nur links von a definiert; diese Seite strebt gegen %1: L = %1 bei a = %2 (ein einseitiger Grenzwert).</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no limit there.</source>
        <translation>f ist nahe a = %1 auf keiner Seite definiert: dort gibt es keinen Grenzwert.</translation>
    </message>
    <message>
        <source>The left side %1 and the right side %2: no limit at a = %3.</source>
        <translation>Die linke Seite %1 und die rechte Seite %2: kein Grenzwert bei a = %3.</translation>
    </message>
    <message>
        <source>tends to infinity</source>
        <translation>strebt gegen unendlich</translation>
    </message>
    <message>
        <source>tends to -infinity</source>
        <translation>strebt gegen -unendlich</translation>
    </message>
    <message>
        <source>tends to %1</source>
        <extracomment>what one side of a does as x nears a (&quot;The left side tends to 1 and ...&quot;)</extracomment>
        <translation>strebt gegen %1</translation>
    </message>
    <message>
        <source>to infinity</source>
        <translation>gegen unendlich</translation>
    </message>
    <message>
        <source>to -infinity</source>
        <translation>gegen -unendlich</translation>
    </message>
    <message>
        <source>to %1</source>
        <extracomment>the right side&apos;s clause when the left side&apos;s said &quot;tends&quot; (&quot;... and the right side to 2&quot;)</extracomment>
        <translation>gegen %1</translation>
    </message>
    <message>
        <source>does not settle</source>
        <translation>pendelt sich nicht ein</translation>
    </message>
    <message>
        <source>is undefined</source>
        <translation>ist nicht definiert</translation>
    </message>
    <message>
        <source>ε must be a positive number.</source>
        <translation>ε muss eine positive Zahl sein.</translation>
    </message>
    <message>
        <source>a and L must be numbers.</source>
        <translation>a und L müssen Zahlen sein.</translation>
    </message>
    <message>
        <source>a = %1 is not inside the window from %2 to %3: move a or widen the window to look for δ.</source>
        <translation>a = %1 liegt nicht im Fenster von %2 bis %3: verschieben Sie a oder vergrößern Sie das Fenster, um δ zu suchen.</translation>
    </message>
    <message>
        <source>ε = %1 is below what rounding in f lets the computer tell apart from L = %2 (it must be at least %3): no δ is looked for.</source>
        <translation>ε = %1 liegt unter dem, was die Rundung in f den Rechner von L = %2 unterscheiden lässt (es muss mindestens %3 sein): es wird kein δ gesucht.</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no δ can be looked for.</source>
        <translation>f ist nahe a = %1 auf keiner Seite definiert: es kann kein δ gesucht werden.</translation>
    </message>
    <message>
        <source>For ε = %1 no δ works: points arbitrarily close to a leave the band (even x = %2 has |f(x) - L| = %3, not below ε).</source>
        <translation>Für ε = %1 passt kein δ: beliebig nahe Punkte bei a verlassen das Band (selbst x = %2 hat |f(x) - L| = %3, nicht unter ε).</translation>
    </message>
    <message>
        <source>For ε = %1 no x of the window leaves the band: δ = %2 is the distance from a to the window&apos;s nearer edge.</source>
        <translation>Für ε = %1 verlässt kein x des Fensters das Band: δ = %2 ist der Abstand von a zum näheren Fensterrand.</translation>
    </message>
    <message>
        <source>For ε = %1 the largest δ is %2: the graph first leaves the band at x = %3 (f = %4).</source>
        <translation>Für ε = %1 ist das größte δ gleich %2: der Graph verlässt das Band zuerst bei x = %3 (f = %4).</translation>
    </message>
    <message>
        <source>%1 f is not defined to the right of a: only x where it is defined count.</source>
        <translation>%1 f ist rechts von a nicht definiert: nur x, wo sie definiert ist, zählen.</translation>
    </message>
    <message>
        <source>%1 f is not defined to the left of a: only x where it is defined count.</source>
        <translation>%1 f ist links von a nicht definiert: nur x, wo sie definiert ist, zählen.</translation>
    </message>
    <message>
        <source>%1 f is undefined at some x of the window: they are not in its domain and do not count.</source>
        <translation>%1 f ist an einigen x des Fensters nicht definiert: sie gehören nicht zum Definitionsbereich und zählen nicht.</translation>
    </message>
    <message>
        <source>x = %1 (f = g at a scanned point)</source>
        <translation>x = %1 (f = g an einem abgetasteten Punkt)</translation>
    </message>
    <message>
        <source>x = %1 (sign change, TOMS 748)</source>
        <translation>x = %1 (Vorzeichenwechsel, TOMS 748)</translation>
    </message>
    <message>
        <source>x = %1 (touch without sign change, Brent minimum of |f - g|)</source>
        <translation>x = %1 (Berührung ohne Vorzeichenwechsel, Brent-Minimum von |f - g|)</translation>
    </message>
    <message>
        <source>x = %1 to %2 (f = g all along)</source>
        <translation>x = %1 bis %2 (f = g durchgehend)</translation>
    </message>
    <message>
        <source>a curve is not defined everywhere on [a, b]</source>
        <translation>eine Kurve ist nicht überall auf [a, b] definiert</translation>
    </message>
    <message>
        <source>f - g jumps across 0 without crossing it near x = %1</source>
        <translation>f - g springt über 0, ohne es zu kreuzen, nahe x = %1</translation>
    </message>
    <message>
        <source>the integral of f - g does not settle between x = %1 and x = %2 (f - g is unbounded there, or oscillates faster than the adaptive rule can follow)</source>
        <translation>das Integral von f - g pendelt sich zwischen x = %1 und x = %2 nicht ein (f - g ist dort unbeschränkt oder schwingt schneller, als die adaptive Regel folgen kann)</translation>
    </message>
    <message>
        <source>No area: %1.</source>
        <translation>Keine Fläche: %1.</translation>
    </message>
    <message>
        <source>Signed area %1 (adaptive Gauss-Kronrod, 61 points, split at the crossings)</source>
        <translation>Orientierte Fläche %1 (adaptives Gauß-Kronrod, 61 Punkte, an den Schnittpunkten geteilt)</translation>
    </message>
    <message>
        <source>no value: %1</source>
        <translation>kein Wert: %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <extracomment>a convergence table&apos;s cell: the error is below the reference&apos;s own accuracy %1</extracomment>
        <translation>unter %1</translation>
    </message>
    <message>
        <source>(reference)</source>
        <extracomment>a convergence table&apos;s cell: the row&apos;s value is the reference itself</extracomment>
        <translation>(Referenz)</translation>
    </message>
    <message>
        <source>round-off</source>
        <extracomment>a convergence table&apos;s cell in place of a ratio, explained by the round-off note under the table</extracomment>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>round-off: an error below %1 is mostly the rounding of double-precision arithmetic over the steps, not the method&apos;s own error, so its ratio is not shown.</source>
        <translation>Rundung: ein Fehler unter %1 ist vor allem die Rundung der Arithmetik mit doppelter Genauigkeit über die Schritte, nicht der Fehler des Verfahrens selbst; sein Verhältnis wird daher nicht gezeigt.</translation>
    </message>
    <message>
        <source>slope %1</source>
        <extracomment>the label of a reference line of slope -%1 on the log-log plot</extracomment>
        <translation>Steigung %1</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>undefined at x = %1</source>
        <translation>nicht definiert bei x = %1</translation>
    </message>
    <message>
        <source>error value</source>
        <translation>Fehlerwert</translation>
    </message>
    <message>
        <source>The function is not defined everywhere on the interval (for example at x = %1): the integral does not exist there.</source>
        <translation>Die Funktion ist nicht überall auf dem Intervall definiert (zum Beispiel bei x = %1): das Integral existiert dort nicht.</translation>
    </message>
    <message>
        <source>The function is unbounded on the interval: the integral does not exist there.</source>
        <translation>Die Funktion ist auf dem Intervall unbeschränkt: das Integral existiert dort nicht.</translation>
    </message>
    <message>
        <source>Exact value %1 (adaptive Gauss-Kronrod, 61 points)</source>
        <translation>Exakter Wert %1 (adaptives Gauß-Kronrod, 61 Punkte)</translation>
    </message>
    <message>
        <source>The integral cannot be computed: %1.</source>
        <translation>Das Integral kann nicht berechnet werden: %1.</translation>
    </message>
    <message>
        <source>Reference endpoint y = %1 (adaptive Runge-Kutta-Fehlberg 7(8) in extended precision; accurate to %2)</source>
        <translation>Referenz-Endpunkt y = %1 (adaptives Runge-Kutta-Fehlberg 7(8) in erweiterter Genauigkeit; genau bis %2)</translation>
    </message>
    <message>
        <source>The curve meets a vertical slope before the end x: there is no endpoint to compare with.</source>
        <translation>Die Kurve trifft vor dem End-x auf eine senkrechte Steigung: es gibt keinen Endpunkt zum Vergleich.</translation>
    </message>
    <message>
        <source>The reference cannot be computed: %1.</source>
        <translation>Die Referenz kann nicht berechnet werden: %1.</translation>
    </message>
    <message>
        <source>The adaptive integration could not reach the end x (the slope grows without bound).</source>
        <translation>Die adaptive Integration konnte das End-x nicht erreichen (die Steigung wächst unbeschränkt).</translation>
    </message>
    <message>
        <source>%1 (%2 steps)</source>
        <extracomment>a row of the step methods&apos; table: the step h (%1) and how many steps reach the end x (%2)</extracomment>
        <translation>%1 (%2 Schritte)</translation>
    </message>
    <message>
        <source>meets a vertical slope</source>
        <translation>trifft eine senkrechte Steigung</translation>
    </message>
    <message>
        <source>leaves the window</source>
        <translation>verlässt das Fenster</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>which of two typed texts a refusal is about (&quot;dy: missing &apos;)&apos; at 3&quot;): %1 names the text (dy, dx, x(t), y(t)) and %2 is the refusal</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers in order.</source>
        <translation>Die Grenzen des Fensters sind keine geordneten Zahlen.</translation>
    </message>
    <message>
        <source>Zoomed out as far as the graph goes: the window is at most 1E+12 wide and high.</source>
        <translation>So weit verkleinert, wie der Graph reicht: das Fenster ist höchstens 1E+12 breit und hoch.</translation>
    </message>
    <message>
        <source>Zoomed in as far as the arithmetic can show: a closer window would draw rounding noise.</source>
        <translation>So weit vergrößert, wie die Arithmetik zeigen kann: ein engeres Fenster würde Rundungsrauschen zeichnen.</translation>
    </message>
    <message>
        <source>raise or lower %1</source>
        <translation>%1 erhöhen oder verringern</translation>
    </message>
    <message>
        <source>Drawn: %1.</source>
        <translation>Gezeichnet: %1.</translation>
    </message>
    <message>
        <source>the typed function y = %1</source>
        <translation>die eingegebene Funktion y = %1</translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <extracomment>a function and its coefficients&apos; values (&quot;y = A*x^2 with A = 1, B = 0&quot;)</extracomment>
        <translation>%1 mit %2</translation>
    </message>
    <message>
        <source>Playing %1.</source>
        <translation>Wiedergabe: %1.</translation>
    </message>
    <message>
        <source>Understood: y = %1
Derivative: y&apos; = %2</source>
        <translation>Verstanden: y = %1
Ableitung: y&apos; = %2</translation>
    </message>
    <message>
        <source>undefined: no f(x) at x = %1</source>
        <translation>nicht definiert: kein f(x) bei x = %1</translation>
    </message>
    <message>
        <source>no slope: f&apos;(x) is undefined at x = %1</source>
        <translation>keine Steigung: f&apos;(x) ist nicht definiert bei x = %1</translation>
    </message>
    <message>
        <source> Not drawn at this window: %1.</source>
        <translation> In diesem Fenster nicht gezeichnet: %1.</translation>
    </message>
    <message>
        <source>Cannot be drawn from here: %1.</source>
        <translation>Kann von hier aus nicht gezeichnet werden: %1.</translation>
    </message>
    <message>
        <source>Cannot be taken: %1</source>
        <translation>Nicht übernommen: %1</translation>
    </message>
    <message>
        <source>error %1</source>
        <extracomment>a convergence table&apos;s cell: the error of the value above it</extracomment>
        <translation>Fehler %1</translation>
    </message>
    <message>
        <source>ratio %1</source>
        <extracomment>a convergence table&apos;s cell: the previous row&apos;s error over this row&apos;s</extracomment>
        <translation>Verhältnis %1</translation>
    </message>
    <message>
        <source>Error against the number of partitions, log-log</source>
        <translation>Fehler gegen die Anzahl der Teilintervalle, doppelt logarithmisch</translation>
    </message>
    <message>
        <source>steps</source>
        <extracomment>the horizontal axis of the step methods&apos; convergence plot</extracomment>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>error</source>
        <extracomment>the vertical axis of a convergence plot</extracomment>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>%1 error</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s errors</extracomment>
        <translation>Fehler %1</translation>
    </message>
    <message>
        <source>%1 ratio</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s ratios of successive errors</extracomment>
        <translation>Verhältnis %1</translation>
    </message>
    <message>
        <source>No errors to plot: %1</source>
        <translation>Keine Fehler zum Zeichnen: %1</translation>
    </message>
    <message>
        <source>%1: too few measurable errors for a slope</source>
        <translation>%1: zu wenige messbare Fehler für eine Steigung</translation>
    </message>
    <message>
        <source>%1: slope %2 (expected -%3)</source>
        <translation>%1: Steigung %2 (erwartet -%3)</translation>
    </message>
    <message>
        <source>%1: slope %2</source>
        <translation>%1: Steigung %2</translation>
    </message>
    <message>
        <source>g(x) = %1 cannot be read: %2.</source>
        <translation>g(x) = %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is not defined at x = %2</source>
        <translation>%1 ist bei x = %2 nicht definiert</translation>
    </message>
    <message>
        <source>%1 is not defined from x = %2 to x = %3</source>
        <translation>%1 ist von x = %2 bis x = %3 nicht definiert</translation>
    </message>
    <message>
        <source>Crossings in [a, b]:
%1</source>
        <translation>Schnittpunkte in [a, b]:
%1</translation>
    </message>
    <message>
        <source>Understood: dy = %1,  dx = %2</source>
        <translation>Verstanden: dy = %1,  dx = %2</translation>
    </message>
    <message>
        <source>Start( %1 , %2 ) </source>
        <translation>Start( %1 , %2 ) </translation>
    </message>
    <message>
        <source>the curve from (%1,%2)</source>
        <translation>die Kurve ab (%1,%2)</translation>
    </message>
    <message>
        <source>EndPt (%1,%2</source>
        <translation>Endpunkt (%1,%2</translation>
    </message>
    <message>
        <source>Type numbers for a, L and ε.</source>
        <translation>Geben Sie Zahlen für a, L und ε ein.</translation>
    </message>
    <message>
        <source>The window&apos;s x limits must be numbers, the minimum below the maximum.</source>
        <translation>Die x-Grenzen des Fensters müssen Zahlen sein, das Minimum unter dem Maximum.</translation>
    </message>
    <message>
        <source>   leaves at x = %1</source>
        <translation>   verlässt bei x = %1</translation>
    </message>
    <message>
        <source>ε = %1   no δ</source>
        <translation>ε = %1   kein δ</translation>
    </message>
    <message>
        <source>Limits by ε and δ of %1, a = %2, L = %3, ε = %4.</source>
        <translation>Grenzwerte mit ε und δ von %1, a = %2, L = %3, ε = %4.</translation>
    </message>
    <message>
        <source>slope = %1</source>
        <translation>Steigung = %1</translation>
    </message>
    <message>
        <source>Slope =%1</source>
        <translation>Steigung =%1</translation>
    </message>
    <message>
        <source>the tangent at x = %1</source>
        <translation>die Tangente bei x = %1</translation>
    </message>
    <message>
        <source>Mean value theorem for %1 on [%2, %3].</source>
        <translation>Mittelwertsatz für %1 auf [%2, %3].</translation>
    </message>
    <message>
        <source>the guess x = %1</source>
        <translation>der Schätzwert x = %1</translation>
    </message>
    <message>
        <source>Newton&apos;s method on %1.</source>
        <translation>Newton-Verfahren für %1.</translation>
    </message>
    <message>
        <source>No guesses yet; first guess box: %1.</source>
        <translation>Noch keine Schätzwerte; Feld für den ersten Schätzwert: %1.</translation>
    </message>
    <message>
        <source>Guesses: %1.</source>
        <translation>Schätzwerte: %1.</translation>
    </message>
    <message>
        <source>(undefined at t = %1)</source>
        <translation>(nicht definiert bei t = %1)</translation>
    </message>
    <message>
        <source>the point at t = %1</source>
        <translation>der Punkt bei t = %1</translation>
    </message>
    <message>
        <source>the curve %1, %2 for t from %3 to %4</source>
        <translation>die Kurve %1, %2 für t von %3 bis %4</translation>
    </message>
    <message>
        <source>Understood: x = %1,  y = %2</source>
        <translation>Verstanden: x = %1,  y = %2</translation>
    </message>
    <message>
        <source>%1 bars</source>
        <extracomment>a sum&apos;s bars as drawn (&quot;Left Endpoint bars&quot;)</extracomment>
        <translation>Balken %1</translation>
    </message>
    <message>
        <source>%1 bars of %2</source>
        <translation>Balken %1 von %2</translation>
    </message>
    <message>
        <source>Delta x = %1</source>
        <translation>Delta x = %1</translation>
    </message>
    <message>
        <source>Delta x = %1, not a number</source>
        <translation>Delta x = %1, keine Zahl</translation>
    </message>
    <message>
        <source>the secant from x = %1</source>
        <translation>die Sekante ab x = %1</translation>
    </message>
    <message>
        <source>Tangent problem for %1 at x = %2, Delta x = %3.</source>
        <translation>Tangentenproblem für %1 bei x = %2, Delta x = %3.</translation>
    </message>
    <message>
        <source>Secant through %1: %2.</source>
        <translation>Sekante durch %1: %2.</translation>
    </message>
    <message>
        <source>No Taylor polynomial: %1.</source>
        <translation>Kein Taylorpolynom: %1.</translation>
    </message>
    <message>
        <source>Taylor polynomials of %1.</source>
        <translation>Taylorpolynome von %1.</translation>
    </message>
    <message>
        <source>No terms yet; centre box: %1.</source>
        <translation>Noch keine Terme; Feld der Entwicklungsstelle: %1.</translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>the last of a list of screens (&quot;..., Newton&apos;s method and Taylor polynomials&quot;)</extracomment>
        <translation>und %1</translation>
    </message>
    <message>
        <source>A launcher opens %1 demonstration screens: %2.</source>
        <translation>Ein Startfenster öffnet %1 Demonstrationsbildschirme: %2.</translation>
    </message>
    <message>
        <source>Left</source>
        <extracomment>a sum&apos;s rule (left endpoints) in the convergence table and the area grid</extracomment>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>a sum&apos;s rule (right endpoints) in the convergence table and the area grid</extracomment>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Trapezoid</source>
        <translation>Trapez</translation>
    </message>
    <message>
        <source>Simpson</source>
        <translation>Simpson</translation>
    </message>
    <message>
        <source>The step was not added: %1.</source>
        <translation>Der Schritt wurde nicht hinzugefügt: %1.</translation>
    </message>
    <message>
        <source>Calculus demonstrations for the classroom. %1
Qt&apos;s standard options (-platform, -style, ...) are accepted.</source>
        <translation>Demonstrationen zur Analysis für den Unterricht. %1
Die Standardoptionen von Qt (-platform, -style, ...) werden akzeptiert.</translation>
    </message>
    <message>
        <source>lesson</source>
        <extracomment>the name of the command line&apos;s argument in `plotto --help`</extracomment>
        <translation>Lektion</translation>
    </message>
    <message>
        <source>A lesson to open (a .plotto file).</source>
        <translation>Eine zu öffnende Lektion (eine .plotto-Datei).</translation>
    </message>
    <message>
        <source>[lesson]</source>
        <translation>[Lektion]</translation>
    </message>
    <message>
        <source>Lists the demonstration screens, one a line in teaching order, separated by tabs: key, button, menu entry, classic or addition (an addition opens from More Demonstrations), the entry&apos;s Alt letter.</source>
        <translation>Listet die Demonstrationsbildschirme auf, einen pro Zeile in Unterrichtsreihenfolge, durch Tabulatoren getrennt: Schlüssel, Schaltfläche, Menüeintrag, klassisch oder Ergänzung (eine Ergänzung öffnet sich über Mehr Demonstrationen), der Alt-Buchstabe des Eintrags.</translation>
    </message>
    <message>
        <source>Opens a screen at the start: %1.</source>
        <translation>Öffnet beim Start einen Bildschirm: %1.</translation>
    </message>
    <message>
        <source>name</source>
        <extracomment>the value of --screen in `plotto --help`</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Writes the lesson as a worksheet to a PDF file, one step a page, and ends, with no window shown.</source>
        <translation>Schreibt die Lektion als Arbeitsblatt in eine PDF-Datei, einen Schritt pro Seite, und endet, ohne ein Fenster zu zeigen.</translation>
    </message>
    <message>
        <source>file.pdf</source>
        <translation>datei.pdf</translation>
    </message>
    <message>
        <source>With --worksheet: leaves the results as boxes to fill in, and writes the answers to a second file (NAME-answers.pdf).</source>
        <translation>Mit --worksheet: lässt die Ergebnisse als auszufüllende Kästchen und schreibt die Lösungen in eine zweite Datei (NAME-answers.pdf).</translation>
    </message>
    <message>
        <source>Shows the program in a language: %1 (English is the default; without this, the language chosen in Tools, Language, else the desktop&apos;s).</source>
        <translation>Zeigt das Programm in einer Sprache: %1 (Englisch ist die Vorgabe; ohne diese Option die unter Werkzeuge, Sprache gewählte, sonst die des Desktops).</translation>
    </message>
    <message>
        <source>code</source>
        <extracomment>the value of --lang in `plotto --help`</extracomment>
        <translation>Code</translation>
    </message>
    <message>
        <source>addition</source>
        <extracomment>a screen&apos;s kind in `plotto --screens`: one of the seed&apos;s eight, or one added since</extracomment>
        <translation>Ergänzung</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>klassisch</translation>
    </message>
    <message>
        <source>%1: answers</source>
        <translation>%1: Lösungen</translation>
    </message>
    <message>
        <source>%1, and %2 or %3, both the natural logarithm</source>
        <translation>%1 sowie %2 oder %3, beide der natürliche Logarithmus</translation>
    </message>
    <message>
        <source>A to E</source>
        <translation>A bis E</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Signed: f - g</source>
        <translation>Orientiert: f - g</translation>
    </message>
    <message>
        <source>Unsigned: |f - g|</source>
        <translation>Betrag: |f - g|</translation>
    </message>
    <message>
        <source>A to F</source>
        <translation>A bis F</translation>
    </message>
    <message>
        <source>leaves at x =</source>
        <translation>verlässt bei x =</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>Neuer Term</translation>
    </message>
    <message>
        <source>Lagrange bound</source>
        <translation>Lagrange-Schranke</translation>
    </message>
    <message>
        <source>%1 is %2. Press to raise by one; the decrease action lowers by one.</source>
        <translation>%1 ist %2. Drücken erhöht um eins; die Aktion Verringern senkt um eins.</translation>
    </message>
    <message>
        <source>%1 holds %2, which is not a number.</source>
        <translation>%1 enthält %2, was keine Zahl ist.</translation>
    </message>
    <message>
        <source>%1 strips is the most this screen sums.</source>
        <translation>%1 Streifen sind das Höchste, was dieser Bildschirm summiert.</translation>
    </message>
    <message>
        <source>the screen has no control named &apos;%1&apos;</source>
        <translation>der Bildschirm hat kein Steuerelement namens &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the box &apos;%1&apos; cannot take %2</source>
        <translation>das Feld &apos;%1&apos; kann %2 nicht aufnehmen</translation>
    </message>
    <message>
        <source>the scroll bar &apos;%1&apos; cannot take that position</source>
        <translation>die Bildlaufleiste &apos;%1&apos; kann diese Stellung nicht annehmen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is ticked or not: true or false</source>
        <translation>&apos;%1&apos; ist angekreuzt oder nicht: true oder false</translation>
    </message>
    <message>
        <source>the screen has no menu entry &apos;%1&apos;</source>
        <translation>der Bildschirm hat keinen Menüeintrag &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the screen has no button &apos;%1&apos;</source>
        <translation>der Bildschirm hat keine Schaltfläche &apos;%1&apos;</translation>
    </message>
    <message>
        <source>This is not a lesson: %1 at character %2.</source>
        <translation>Das ist keine Lektion: %1 bei Zeichen %2.</translation>
    </message>
    <message>
        <source>The lesson has no valid version number.</source>
        <translation>Die Lektion hat keine gültige Versionsnummer.</translation>
    </message>
    <message>
        <source>Step %1: unknown screen &apos;%2&apos; (the screens are %3).</source>
        <translation>Schritt %1: unbekannter Bildschirm &apos;%2&apos; (die Bildschirme sind %3).</translation>
    </message>
    <message>
        <source>Step %1: an action names no button to click or menu entry to choose.</source>
        <translation>Schritt %1: eine Aktion nennt keine zu klickende Schaltfläche und keinen zu wählenden Menüeintrag.</translation>
    </message>
    <message>
        <source>The lesson cannot be written to %1: %2.</source>
        <translation>Die Lektion kann nicht nach %1 geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The lesson could not be saved to %1: %2. Nothing was changed there.</source>
        <translation>Die Lektion konnte nicht nach %1 gespeichert werden: %2. Dort wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The lesson %1 cannot be read: %2.</source>
        <translation>Die Lektion %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is too large to be a lesson.</source>
        <translation>%1 ist zu groß für eine Lektion.</translation>
    </message>
    <message>
        <source>black</source>
        <translation>schwarz</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blau</translation>
    </message>
    <message>
        <source>green</source>
        <translation>grün</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rot</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>gelb</translation>
    </message>
    <message>
        <source>white</source>
        <translation>weiß</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>grau</translation>
    </message>
    <message>
        <source>light blue</source>
        <translation>hellblau</translation>
    </message>
    <message>
        <source>light green</source>
        <translation>hellgrün</translation>
    </message>
    <message>
        <source>light cyan</source>
        <translation>hellcyan</translation>
    </message>
    <message>
        <source>light red</source>
        <translation>hellrot</translation>
    </message>
    <message>
        <source>light magenta</source>
        <translation>hellmagenta</translation>
    </message>
    <message>
        <source>light yellow</source>
        <translation>hellgelb</translation>
    </message>
    <message>
        <source>bright white</source>
        <translation>strahlend weiß</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>a drawn curve and the colour it is drawn in: &quot;y = x^2, in blue&quot;</extracomment>
        <translation>%1, in %2</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Zeigt die Hilfe zu den Kommandozeilenoptionen.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Zeigt die Hilfe einschließlich der Qt-eigenen Optionen.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Zeigt die Versionsinformation.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
</context>
</TS>
