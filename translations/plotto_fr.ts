<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Plotto</name>
    <message>
        <source>check box</source>
        <translation>case à cocher</translation>
    </message>
    <message>
        <source>scroll bar</source>
        <translation>barre de défilement</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Plotto lessons (*.plotto);;All files (*)</source>
        <translation>Leçons Plotto (*.plotto);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>That could not be done: %1 (error %2). Nothing else is affected; change what was typed and try again.</source>
        <translation>Cela n&apos;a pas pu être fait : %1 (erreur %2). Rien d&apos;autre n&apos;est touché ; modifiez ce qui a été saisi et réessayez.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>Impossible d&apos;écrire %1 : %2.</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .svg, .pdf or .png.</source>
        <translation>Le nom de fichier %1 ne dit pas quel type de fichier écrire : terminez-le par .svg, .pdf ou .png.</translation>
    </message>
    <message>
        <source>the picture is too large for the memory</source>
        <translation>l&apos;image est trop grande pour la mémoire</translation>
    </message>
    <message>
        <source>the file could not be made</source>
        <translation>le fichier n&apos;a pas pu être créé</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>You graphing window is compromised.  It will be reset to the defaults.</source>
        <translation>Votre fenêtre graphique est compromise. Elle va être remise aux valeurs par défaut.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>&amp;Select Function</source>
        <translation>&amp;Choisir une fonction</translation>
    </message>
    <message>
        <source>&amp;Plotto!</source>
        <translation>&amp;Plotto!</translation>
    </message>
    <message>
        <source>&amp;Erase Graph</source>
        <translation>&amp;Effacer le graphique</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>Valeurs par &amp;défaut</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Window: x from %1 to %2, y from %3 to %4.</source>
        <translation>Fenêtre : x de %1 à %2, y de %3 à %4.</translation>
    </message>
    <message>
        <source>And %1 more drawings.</source>
        <translation>Et %1 autres tracés.</translation>
    </message>
    <message>
        <source>y = 0 (no function chosen)</source>
        <translation>y = 0 (aucune fonction choisie)</translation>
    </message>
    <message>
        <source>&amp;Caption under the graph</source>
        <translation>&amp;Légende sous le graphique</translation>
    </message>
    <message>
        <source>&amp;Black and white (line styles instead of colours)</source>
        <translation>&amp;Noir et blanc (styles de trait au lieu des couleurs)</translation>
    </message>
    <message>
        <source>&amp;Line width:</source>
        <translation>&amp;Épaisseur du trait :</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution :</translation>
    </message>
    <message>
        <source>Export Graph</source>
        <translation>Exporter le graphique</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg);;PDF document (*.pdf);;PNG picture (*.png)</source>
        <translation>Dessin SVG (*.svg);;Document PDF (*.pdf);;Image PNG (*.png)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Type a Function...</source>
        <translation>&amp;Taper une fonction...</translation>
    </message>
    <message>
        <source>&amp;Type...</source>
        <translation>&amp;Taper...</translation>
    </message>
    <message>
        <source>&amp;Projector Mode</source>
        <translation>Mode &amp;projecteur</translation>
    </message>
    <message>
        <source>&amp;Hear the Curve</source>
        <translation>&amp;Écouter la courbe</translation>
    </message>
    <message>
        <source>&amp;Export Graph...</source>
        <translation>E&amp;xporter le graphique...</translation>
    </message>
    <message>
        <source>P&amp;rint...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Pr&amp;int Preview...</source>
        <translation>&amp;Aperçu avant impression...</translation>
    </message>
    <message>
        <source>&amp;Add This Screen to the Lesson</source>
        <translation>Ajouter cet écran à la &amp;leçon</translation>
    </message>
    <message>
        <source>&amp;Open Lesson...</source>
        <translation>&amp;Ouvrir une leçon...</translation>
    </message>
    <message>
        <source>&amp;Save Lesson...</source>
        <translation>&amp;Enregistrer la leçon...</translation>
    </message>
    <message>
        <source>Export Lesson as &amp;Worksheet...</source>
        <translation>Exporter la leçon en &amp;fiche d&apos;exercices...</translation>
    </message>
    <message>
        <source>&amp;Next Step</source>
        <translation>Étape &amp;suivante</translation>
    </message>
    <message>
        <source>Pre&amp;vious Step</source>
        <translation>Étape pré&amp;cédente</translation>
    </message>
    <message>
        <source>Nothing is drawn to hear yet.</source>
        <translation>Rien n&apos;est encore tracé à écouter.</translation>
    </message>
    <message>
        <source>No sound device: the curve cannot be heard here. Left and Right still walk along it.</source>
        <translation>Aucun périphérique audio : la courbe ne peut pas être entendue ici. Gauche et Droite la parcourent toujours.</translation>
    </message>
    <message>
        <source>, above the window</source>
        <translation>, au-dessus de la fenêtre</translation>
    </message>
    <message>
        <source>, below the window</source>
        <translation>, au-dessous de la fenêtre</translation>
    </message>
    <message>
        <source>Nothing is drawn to walk along yet.</source>
        <translation>Rien n&apos;est encore tracé à parcourir.</translation>
    </message>
    <message>
        <source>Curve %1 of %2 has no points to walk along.</source>
        <translation>La courbe %1 sur %2 n&apos;a aucun point à parcourir.</translation>
    </message>
    <message>
        <source>Curve %1 of %2: %3. </source>
        <translation>Courbe %1 sur %2 : %3. </translation>
    </message>
    <message>
        <source>No root, turn or axis crossing on this curve.</source>
        <translation>Aucune racine, aucun extremum ni aucune intersection avec un axe sur cette courbe.</translation>
    </message>
    <message>
        <source>the screen has no function &apos;%1&apos;</source>
        <translation>l&apos;écran n&apos;a pas de fonction « %1 »</translation>
    </message>
    <message>
        <source>a typed function names every part: %1</source>
        <translation>une fonction saisie nomme chaque partie : %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a family number from 1 to %2</source>
        <translation>« %1 » est un numéro de famille de 1 à %2</translation>
    </message>
    <message>
        <source>the function &apos;%1&apos; cannot be taken: %2</source>
        <translation>la fonction « %1 » ne peut pas être prise : %2</translation>
    </message>
    <message>
        <source>Typed function</source>
        <translation>Fonction saisie</translation>
    </message>
    <message>
        <source>Type a function y = f(x)</source>
        <translation>Taper une fonction y = f(x)</translation>
    </message>
    <message>
        <source>This screen does not graph a function y = f(x).</source>
        <translation>Cet écran ne trace pas de fonction y = f(x).</translation>
    </message>
    <message>
        <source>cannot be computed: the numbers are too large</source>
        <translation>impossible à calculer : les nombres sont trop grands</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>O&amp;riginal Window</source>
        <translation>Fenêtre d&apos;&amp;origine</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédente</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source> Some drawings made before cannot be drawn again at a new window: press the screen&apos;s buttons to draw them here.</source>
        <translation> Certains tracés faits auparavant ne peuvent pas être refaits dans une nouvelle fenêtre : appuyez sur les boutons de l&apos;écran pour les tracer ici.</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers: type them first.</source>
        <translation>Les limites de la fenêtre ne sont pas des nombres : saisissez-les d&apos;abord.</translation>
    </message>
    <message>
        <source>No window before this one.</source>
        <translation>Aucune fenêtre avant celle-ci.</translation>
    </message>
    <message>
        <source>No window after this one.</source>
        <translation>Aucune fenêtre après celle-ci.</translation>
    </message>
    <message>
        <source>Use %1, the coefficients %2, the numbers e and pi, + - * / and ^ (a power, taken before a minus sign: -x^2 is -(x^2)). Write every product with *, as 2*x. Functions: %3.</source>
        <translation>Utilisez %1, les coefficients %2, les nombres e et pi, + - * / et ^ (une puissance, calculée avant un signe moins : -x^2 vaut -(x^2)). Écrivez chaque produit avec *, comme 2*x. Fonctions : %3.</translation>
    </message>
    <message>
        <source>Examples...</source>
        <translation>Exemples...</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemples</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Error against the number of steps, log-log</source>
        <translation>Erreur en fonction du nombre de pas, log-log</translation>
    </message>
    <message>
        <source>Re&amp;compute</source>
        <translation>Re&amp;calculer</translation>
    </message>
    <message>
        <source>slope -%1</source>
        <translation>pente -%1</translation>
    </message>
    <message>
        <source>Con&amp;vergence</source>
        <translation>Con&amp;vergence</translation>
    </message>
    <message>
        <source>Convergence &amp;Table...</source>
        <translation>&amp;Tableau de convergence...</translation>
    </message>
    <message>
        <source>Animate Classes of Functions</source>
        <translation>Animer des classes de fonctions</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Continuous/Steps</source>
        <translation>Continu/Pas</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Steps+Erase</source>
        <translation>Pas+Effacer</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Continuous+Erase</source>
        <translation>Continu+Effacer</translation>
    </message>
    <message>
        <source>Variable Range</source>
        <translation>Plage de la variable</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Début :</translation>
    </message>
    <message>
        <source>End:</source>
        <translation>Fin :</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Pas :</translation>
    </message>
    <message>
        <source>Which Variable?</source>
        <translation>Quelle variable ?</translation>
    </message>
    <message>
        <source>Animation frame</source>
        <translation>Image de l&apos;animation</translation>
    </message>
    <message>
        <source>Select Variable(s)</source>
        <translation>Choisir la ou les variables</translation>
    </message>
    <message>
        <source>&amp;Animate It!</source>
        <translation>&amp;Animer !</translation>
    </message>
    <message>
        <source>Erase Graph</source>
        <translation>Effacer le graphique</translation>
    </message>
    <message>
        <source>Erase Graph, animation panel</source>
        <translation>Effacer le graphique, panneau d&apos;animation</translation>
    </message>
    <message>
        <source>OK to Click Animate</source>
        <translation>Prêt à animer</translation>
    </message>
    <message>
        <source>Use Scroll Bar Above</source>
        <translation>Utiliser la barre ci-dessus</translation>
    </message>
    <message>
        <source>Graph a Function</source>
        <translation>Tracer une fonction</translation>
    </message>
    <message>
        <source>Select a function from the pull down menu.  You may change the value of any of the variables, A to E.  Clicking [Plotto!] will graph the function.  You may change any value and graph again to see the change.  You may also animate the change.</source>
        <translation>Choisissez une fonction dans le menu déroulant. Vous pouvez changer la valeur de n&apos;importe quelle variable, de A à E. Un clic sur [Plotto!] trace la fonction. Vous pouvez changer une valeur et tracer de nouveau pour voir le changement. Vous pouvez aussi animer le changement.</translation>
    </message>
    <message>
        <source>Animate It!</source>
        <translation>Animer !</translation>
    </message>
    <message>
        <source>Animate the function selected by checking one or more variables at the right, selecting the range of the variable, and clicking [Animate It!]</source>
        <translation>Animez la fonction choisie en cochant une ou plusieurs variables à droite, en choisissant la plage de la variable et en cliquant sur [Animer !]</translation>
    </message>
    <message>
        <source>Make conjectures about coefficients</source>
        <translation>Émettre des conjectures sur les coefficients</translation>
    </message>
    <message>
        <source>You may observe the changes each coefficient makes on the graph.  Make some conjectures about what each coefficient changes the graph.</source>
        <translation>Vous pouvez observer les changements que chaque coefficient produit sur le graphique. Émettez des conjectures sur ce que chaque coefficient change au graphique.</translation>
    </message>
    <message>
        <source>Left and Right Clicking Labels</source>
        <translation>Clics gauche et droit sur les étiquettes</translation>
    </message>
    <message>
        <source>Clicking on the coefficient labels will increase or decrease the coefficients.  Try left clicking to increase and right clicking to decrease.</source>
        <translation>Cliquer sur les étiquettes des coefficients augmente ou diminue les coefficients. Essayez un clic gauche pour augmenter et un clic droit pour diminuer.</translation>
    </message>
    <message>
        <source>Change the Graphing Window</source>
        <translation>Changer la fenêtre graphique</translation>
    </message>
    <message>
        <source>Clicking on the &lt; or &gt; labels next to the graphing window ranges will increase or decrease them by one also.</source>
        <translation>Cliquer sur les étiquettes &lt; ou &gt; à côté des limites de la fenêtre les augmente ou les diminue aussi de un.</translation>
    </message>
    <message>
        <source>Clicking Labels</source>
        <translation>Cliquer sur les étiquettes</translation>
    </message>
    <message>
        <source>Try clicking other labels.  Most of them will increase or decrease by one with left or right clicks.</source>
        <translation>Essayez de cliquer sur d&apos;autres étiquettes. La plupart augmentent ou diminuent de un avec un clic gauche ou droit.</translation>
    </message>
    <message>
        <source>Window limit changes &lt; , &gt;</source>
        <translation>Changer les limites de la fenêtre &lt; , &gt;</translation>
    </message>
    <message>
        <source>Notice the &lt; and &gt; green labels next to the window limits.  Clicking on the Arrows will increase or decrease the window limit by one.  Double clicking will increase or decrease it by 5.</source>
        <translation>Remarquez les étiquettes vertes &lt; et &gt; à côté des limites de la fenêtre. Un clic sur les flèches augmente ou diminue la limite de un. Un double clic l&apos;augmente ou la diminue de 5.</translation>
    </message>
    <message>
        <source>Animating %1 of %2 from %3 to %4 in %5 steps, %6.</source>
        <translation>Animation de %1 de %2 de %3 à %4 en %5 pas, %6.</translation>
    </message>
    <message>
        <source>no coefficient</source>
        <translation>aucun coefficient</translation>
    </message>
    <message>
        <source>Frame value %1; %2.</source>
        <translation>Valeur de l&apos;image %1 ; %2.</translation>
    </message>
    <message>
        <source>Area Between Two Curves</source>
        <translation>Aire entre deux courbes</translation>
    </message>
    <message>
        <source>Left a</source>
        <translation>Gauche a</translation>
    </message>
    <message>
        <source>Right b</source>
        <translation>Droite b</translation>
    </message>
    <message>
        <source>Strips n</source>
        <translation>Bandes n</translation>
    </message>
    <message>
        <source>&amp;Double Strips</source>
        <translation>&amp;Doubler les bandes</translation>
    </message>
    <message>
        <source>Find &amp;Crossings</source>
        <translation>Trouver les &amp;intersections</translation>
    </message>
    <message>
        <source>Find where f and g cross in [a, b], shade the region and sum the strips</source>
        <translation>Trouve où f et g se coupent dans [a, b], ombre la région et somme les bandes</translation>
    </message>
    <message>
        <source>Areas by the strip rules</source>
        <translation>Aires par les règles des bandes</translation>
    </message>
    <message>
        <source>Convergence of the signed area</source>
        <translation>Convergence de l&apos;aire algébrique</translation>
    </message>
    <message>
        <source>Limit (integral)</source>
        <translation>Limite (intégrale)</translation>
    </message>
    <message>
        <source>Shaded light cyan where f is above g, yellow where g is above f.</source>
        <translation>Ombré cyan clair là où f est au-dessus de g, jaune là où g est au-dessus de f.</translation>
    </message>
    <message>
        <source>Type a number in each of the boxes Left a and Right b.</source>
        <translation>Saisissez un nombre dans chacune des cases Gauche a et Droite b.</translation>
    </message>
    <message>
        <source>The interval from a to b is too wide for the computer&apos;s numbers.</source>
        <translation>L&apos;intervalle de a à b est trop large pour les nombres de l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Left a must be less than Right b.</source>
        <translation>Gauche a doit être inférieur à Droite b.</translation>
    </message>
    <message>
        <source>The number of strips n must be a whole number from 1 to %1.</source>
        <translation>Le nombre de bandes n doit être un entier de 1 à %1.</translation>
    </message>
    <message>
        <source>Type g(x) in its box (for example x + 2).</source>
        <translation>Saisissez g(x) dans sa case (par exemple x + 2).</translation>
    </message>
    <message>
        <source>the region between %1 and %2 from x = %3 to %4</source>
        <translation>la région entre %1 et %2 de x = %3 à %4</translation>
    </message>
    <message>
        <source>and %1 more (Ctrl+C copies them all)</source>
        <translation>et %1 autres (Ctrl+C les copie toutes)</translation>
    </message>
    <message>
        <source>f and g do not cross in [a, b].</source>
        <translation>f et g ne se coupent pas dans [a, b].</translation>
    </message>
    <message>
        <source>n odd</source>
        <translation>n impair</translation>
    </message>
    <message>
        <source>Rule (n = %1)</source>
        <translation>Règle (n = %1)</translation>
    </message>
    <message>
        <source>Signed area %1, unsigned area %2 from x = %3 to %4 (adaptive Gauss-Kronrod, split at the crossings; error below %5).</source>
        <translation>Aire algébrique %1, aire géométrique %2 de x = %3 à %4 (Gauss-Kronrod adaptatif, découpé aux intersections ; erreur inférieure à %5).</translation>
    </message>
    <message>
        <source>No area: %1, so the area between the curves does not exist on [a, b].</source>
        <translation>Pas d&apos;aire : %1, donc l&apos;aire entre les courbes n&apos;existe pas sur [a, b].</translation>
    </message>
    <message>
        <source>the left end a</source>
        <translation>l&apos;extrémité gauche a</translation>
    </message>
    <message>
        <source>the right end b</source>
        <translation>l&apos;extrémité droite b</translation>
    </message>
    <message>
        <source>Area between f, %1, and g(x) = %2 from a = %3 to b = %4 with n = %5 strips.</source>
        <translation>Aire entre f, %1, et g(x) = %2 de a = %3 à b = %4 avec n = %5 bandes.</translation>
    </message>
    <message>
        <source>No crossings.</source>
        <translation>Aucune intersection.</translation>
    </message>
    <message>
        <source>%1: signed %2, unsigned %3.</source>
        <translation>%1 : algébrique %2, géométrique %3.</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>Qu&apos;est-ce que c&apos;est ?</translation>
    </message>
    <message>
        <source>This screen finds the area between two curves f and g from x = a to x = b: where they cross, the region between them, and how sums of thin strips close in on the area.</source>
        <translation>Cet écran calcule l&apos;aire entre deux courbes f et g de x = a à x = b : où elles se coupent, la région entre elles, et comment des sommes de bandes fines se rapprochent de l&apos;aire.</translation>
    </message>
    <message>
        <source>Setting up</source>
        <translation>Mise en place</translation>
    </message>
    <message>
        <source>f is the screen&apos;s function: select it from the menu and choose A to E, or type one with Tools, Type a Function.  Type g(x) in its box (it may use A to E too).  Type a and b, or click their green labels to move them by one (left button up, right button down).</source>
        <translation>f est la fonction de l&apos;écran : choisissez-la dans le menu et choisissez A à E, ou tapez-en une avec Outils, Taper une fonction. Saisissez g(x) dans sa case (elle peut aussi utiliser A à E). Saisissez a et b, ou cliquez sur leurs étiquettes vertes pour les déplacer de un (bouton gauche vers le haut, droit vers le bas).</translation>
    </message>
    <message>
        <source>[Find Crossings]</source>
        <translation>[Trouver les intersections]</translation>
    </message>
    <message>
        <source>Lists each x in [a, b] where f = g, found to the computer&apos;s full precision, and shades the region: light cyan where f is above g, yellow where g is above f.  Where a curve is not defined somewhere in [a, b] the screen says where, and gives no area.</source>
        <translation>Donne chaque x de [a, b] où f = g, trouvé avec toute la précision de l&apos;ordinateur, et ombre la région : cyan clair là où f est au-dessus de g, jaune là où g est au-dessus de f. Là où une courbe n&apos;est pas définie quelque part dans [a, b], l&apos;écran dit où et ne donne pas d&apos;aire.</translation>
    </message>
    <message>
        <source>The strips</source>
        <translation>Les bandes</translation>
    </message>
    <message>
        <source>The grid sums n strips by five rules: the signed area of f - g (parts where g is above count as negative) and the unsigned area of |f - g|, with the limit from adaptive integration in the last row.  [Double Strips] doubles n; Convergence, Convergence Table shows each rule&apos;s error as n doubles.</source>
        <translation>Le tableau somme n bandes selon cinq règles : l&apos;aire algébrique de f - g (les parties où g est au-dessus comptent négativement) et l&apos;aire géométrique de |f - g|, avec la limite obtenue par intégration adaptative dans la dernière ligne. [Doubler les bandes] double n ; Convergence, Tableau de convergence montre l&apos;erreur de chaque règle quand n double.</translation>
    </message>
    <message>
        <source>Graphing Classes of Functions</source>
        <translation>Tracer des classes de fonctions</translation>
    </message>
    <message>
        <source>How To Use This</source>
        <translation>Mode d&apos;emploi</translation>
    </message>
    <message>
        <source>This screen allows you to graph various functions.  Select the function you like from the menu.  Enter the values for A, B, C, D, E, then click on [Plotto].</source>
        <translation>Cet écran permet de tracer diverses fonctions. Choisissez la fonction voulue dans le menu. Saisissez les valeurs de A, B, C, D, E, puis cliquez sur [Plotto].</translation>
    </message>
    <message>
        <source>Making Changes</source>
        <translation>Faire des changements</translation>
    </message>
    <message>
        <source>You may change the variables then graph again to see the changes to the graph.  You will not erase the graph when changing values of variables or selecting new functions.</source>
        <translation>Vous pouvez changer les variables puis tracer de nouveau pour voir les changements du graphique. Le graphique n&apos;est pas effacé quand vous changez les valeurs des variables ou choisissez de nouvelles fonctions.</translation>
    </message>
    <message>
        <source>Quick change hints</source>
        <translation>Astuces pour changer vite</translation>
    </message>
    <message>
        <source>You may also change the values of the variables by clicking on the labels.  Left clicks increase the value by one, a right click decreases the value by one.</source>
        <translation>Vous pouvez aussi changer les valeurs des variables en cliquant sur les étiquettes. Un clic gauche augmente la valeur de un, un clic droit la diminue de un.</translation>
    </message>
    <message>
        <source>Change the Graphing Window?</source>
        <translation>Changer la fenêtre graphique ?</translation>
    </message>
    <message>
        <source>You can click on [Zoom In] to shrink the graphing area to 1/4 by reducing Xmin, Xmax, Ymin, and Ymax in half.  You may click in the values at the end of the axes to change them to any values you wish.</source>
        <translation>Vous pouvez cliquer sur [Zoom avant] pour réduire la zone graphique au quart en divisant Xmin, Xmax, Ymin et Ymax par deux. Vous pouvez cliquer dans les valeurs aux extrémités des axes pour les remplacer par les valeurs de votre choix.</translation>
    </message>
    <message>
        <source>Start( _____, _____ )</source>
        <translation>Départ( _____, _____ )</translation>
    </message>
    <message>
        <source>Type the rates dy and dx</source>
        <translation>Taper les taux dy et dx</translation>
    </message>
    <message>
        <source>x and y</source>
        <translation>x et y</translation>
    </message>
    <message>
        <source> With dx = 1 the field is the slope field of dy/dx = dy.</source>
        <translation> Avec dx = 1, le champ est le champ de directions de dy/dx = dy.</translation>
    </message>
    <message>
        <source>Enter x coordinate:</source>
        <translation>Saisir la coordonnée x :</translation>
    </message>
    <message>
        <source>Enter y coordinate:</source>
        <translation>Saisir la coordonnée y :</translation>
    </message>
    <message>
        <source>Delta x=</source>
        <translation>Delta x=</translation>
    </message>
    <message>
        <source>Delta Vmag=</source>
        <translation>Delta Vmag=</translation>
    </message>
    <message>
        <source>In the curve option, Euler is the only method for calculating points.</source>
        <translation>Avec l&apos;option courbe, Euler est la seule méthode de calcul des points.</translation>
    </message>
    <message>
        <source>Sorry</source>
        <translation>Désolé</translation>
    </message>
    <message>
        <source>The maximum for the points graphed is 10000</source>
        <translation>Le maximum de points tracés est 10000</translation>
    </message>
    <message>
        <source>Max Points Met-Plus</source>
        <translation>Maximum de points atteint</translation>
    </message>
    <message>
        <source>Slope Fields, Integral Curves, or Approximations</source>
        <translation>Champs de directions, courbes intégrales ou approximations</translation>
    </message>
    <message>
        <source>This screen allows you to see Slope Fields, see integral curves, or to use various methods to find approximations.</source>
        <translation>Cet écran permet de voir des champs de directions, des courbes intégrales, ou d&apos;utiliser diverses méthodes pour trouver des approximations.</translation>
    </message>
    <message>
        <source>Graph Slope Fields</source>
        <translation>Tracer les champs de directions</translation>
    </message>
    <message>
        <source>Select dx and dy functions from the menus.  Select the values of the coefficients.  Click on [Graph Slope Fields] to see the slopes at all the integral values of the -10 by 10 screen.  You may resize the screen.  The vectors start at the integers so you can determine the direction from where it is supposed to start.</source>
        <translation>Choisissez les fonctions dx et dy dans les menus. Choisissez les valeurs des coefficients. Cliquez sur [Tracer les champs de directions] pour voir les pentes en tous les points entiers de l&apos;écran de -10 à 10. Vous pouvez redimensionner l&apos;écran. Les vecteurs partent des entiers, ce qui permet de lire la direction à partir de leur point de départ.</translation>
    </message>
    <message>
        <source>Left or Right Click in the Graphing screen</source>
        <translation>Clic gauche ou droit dans la zone graphique</translation>
    </message>
    <message>
        <source>Clicking on the graphing part of the screen will start the plot of an integral curve or can be used to find the endpoint approximation from that initial point.  The graph will follow the slope field smoothly or acording to the Delta x from left to right.  If the curve leaves the area, the curve will not come back onto the screen.  If you right click the slope field will go in the opposite direction.  You may select the number of points to plot and the change in x(Delta x) for the Method used in the computation of approximation.  The number of points and Delta x are used by the Plotto button also.</source>
        <translation>Cliquer dans la partie graphique de l&apos;écran lance le tracé d&apos;une courbe intégrale ou permet de trouver l&apos;approximation du point final à partir de ce point initial. Le tracé suit le champ de directions de façon lisse ou selon Delta x, de gauche à droite. Si la courbe sort de la zone, elle ne revient pas à l&apos;écran. Avec un clic droit, le champ est parcouru dans le sens opposé. Vous pouvez choisir le nombre de points à tracer et la variation de x (Delta x) pour la méthode utilisée dans le calcul de l&apos;approximation. Le nombre de points et Delta x servent aussi au bouton Plotto.</translation>
    </message>
    <message>
        <source>Purpose? - Find an endpoint or See the curve</source>
        <translation>But ? - Trouver un point final ou voir la courbe</translation>
    </message>
    <message>
        <source>The purpose may be confusing to some.  The best way to deal with this is a circle dy/dx = -x/y.  If you started at (4,3) and wanted a y value at x=6 using 3 steps, you would get a value.  If you followed the slope field you shouldn&apos;t get there since the radius is 5.  The circle would not have an x=6.  Finding the approximation is achieved since you do not hit a vertical slope and delta x stays positive making the slope change orientation(it goes up-right instead of down-left).  This should graph a &apos;V&apos; or non-differential point.  The smooth curve is achieved by using dy and dx separately in a vector plot.  The delta x is no longer the change in x.  Delta x is the length of each the vector used in plotting the curve.</source>
        <translation>Le but peut en dérouter certains. Le mieux est de prendre un cercle dy/dx = -x/y. Si vous partez de (4,3) et voulez une valeur de y en x=6 avec 3 pas, vous obtenez une valeur. En suivant le champ de directions, vous ne devriez pas y arriver puisque le rayon vaut 5. Le cercle n&apos;a pas de x=6. L&apos;approximation aboutit car on ne rencontre pas de pente verticale et delta x reste positif, ce qui fait changer l&apos;orientation de la pente (elle va vers le haut à droite au lieu du bas à gauche). Cela devrait tracer un « V », un point non dérivable. La courbe lisse s&apos;obtient en utilisant dy et dx séparément dans un tracé vectoriel. Delta x n&apos;est plus alors la variation de x. Delta x est la longueur de chaque vecteur utilisé pour tracer la courbe.</translation>
    </message>
    <message>
        <source>I want an exact point to Start?</source>
        <translation>Je veux partir d&apos;un point exact ?</translation>
    </message>
    <message>
        <source>You may not be able to move the cursor to the point you want.  You may click on the Start(___,___) label box to enter your points.  As soon as you enter the y coordinate the graph will show your plot and the endpoint will show the final value.  If your plot goes off the graph window the program at that point for your endpoint.  Change the window so it will fit.</source>
        <translation>Vous n&apos;arriverez peut-être pas à placer le curseur au point voulu. Vous pouvez cliquer sur l&apos;étiquette Départ(___,___) pour saisir vos points. Dès que vous saisissez la coordonnée y, le graphique montre votre tracé et le point final affiche la valeur finale. Si votre tracé sort de la fenêtre graphique, le programme s&apos;arrête à ce point pour votre point final. Changez la fenêtre pour qu&apos;il y tienne.</translation>
    </message>
    <message>
        <source>Plotto!</source>
        <translation>Plotto!</translation>
    </message>
    <message>
        <source>Clicking on [Plotto] will set in motion the plotting of the integral curves from 20 points on the x-axis and 20 points on the y-axis.  These would be at the integer points for the default -10 by 10 screen.  You may shift these points by entering a value in the Horizontal Shift or Vertical Shift boxes at the right.  You may also make the plotting Bi-Directional by checking that box.  You may have to wait for the screen to change since it will graph all at once.</source>
        <translation>Un clic sur [Plotto] lance le tracé des courbes intégrales à partir de 20 points de l&apos;axe des x et de 20 points de l&apos;axe des y. Pour l&apos;écran par défaut de -10 à 10, ce sont les points entiers. Vous pouvez décaler ces points en saisissant une valeur dans les cases Décalage horizontal ou Décalage vertical à droite. Vous pouvez aussi rendre le tracé bidirectionnel en cochant cette case. Il faudra peut-être attendre que l&apos;écran change, car tout est tracé d&apos;un coup.</translation>
    </message>
    <message>
        <source>Typed rates: %1; %2.</source>
        <translation>Taux saisis : %1 ; %2.</translation>
    </message>
    <message>
        <source>Rates: %1, that is dy = %2; %3, that is dx = %4.</source>
        <translation>Taux : %1, soit dy = %2 ; %3, soit dx = %4.</translation>
    </message>
    <message>
        <source>Purpose: approximation by %1, %2 %3.</source>
        <translation>But : approximation par %1, %2 %3.</translation>
    </message>
    <message>
        <source>Purpose: smooth curves.</source>
        <translation>But : courbes lisses.</translation>
    </message>
    <message>
        <source>EndPt: the curve stops where dy/dx is undefined</source>
        <translation>Point final : la courbe s&apos;arrête là où dy/dx n&apos;est pas définie</translation>
    </message>
    <message>
        <source>the slope field</source>
        <translation>le champ de directions</translation>
    </message>
    <message>
        <source>an integral curve</source>
        <translation>une courbe intégrale</translation>
    </message>
    <message>
        <source>Slope Fields</source>
        <translation>Champs de directions</translation>
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
        <translation>Cliquez dans le graphique pour tracer une courbe intégrale.</translation>
    </message>
    <message>
        <source>Start (____, ____)</source>
        <translation>Départ (____, ____)</translation>
    </message>
    <message>
        <source>Endpt ( ____, ____ )</source>
        <translation>Point final ( ____, ____ )</translation>
    </message>
    <message>
        <source>&amp;Show Slope Field</source>
        <translation>&amp;Afficher le champ</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>But</translation>
    </message>
    <message>
        <source>Find &amp;Appoximation</source>
        <translation>Trouver une a&amp;pproximation</translation>
    </message>
    <message>
        <source>See smooth &amp;curve</source>
        <translation>Voir la &amp;courbe lisse</translation>
    </message>
    <message>
        <source>Method Options</source>
        <translation>Choix de la méthode</translation>
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
        <translation>Méthode d&apos;&amp;Euler</translation>
    </message>
    <message>
        <source>Plotto Options</source>
        <translation>Options de Plotto</translation>
    </message>
    <message>
        <source>Horizontal Shift</source>
        <translation>Décalage horizontal</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>Décalage vertical</translation>
    </message>
    <message>
        <source>Bi-directional</source>
        <translation>Bidirectionnel</translation>
    </message>
    <message>
        <source>Number of Curve Points</source>
        <translation>Nombre de points de la courbe</translation>
    </message>
    <message>
        <source>Maximum of 10000 points</source>
        <translation>Maximum de 10000 points</translation>
    </message>
    <message>
        <source>Delta x = </source>
        <translation>Delta x = </translation>
    </message>
    <message>
        <source>This value is used in Euler&apos;s Method to find succeeding points.</source>
        <translation>Cette valeur sert à la méthode d&apos;Euler pour trouver les points suivants.</translation>
    </message>
    <message>
        <source>Select d&amp;y - Function</source>
        <translation>Choisir la fonction d&amp;y</translation>
    </message>
    <message>
        <source>Select d&amp;x - Function</source>
        <translation>Choisir la fonction d&amp;x</translation>
    </message>
    <message>
        <source>Convergence of the step methods</source>
        <translation>Convergence des méthodes à pas</translation>
    </message>
    <message>
        <source>Start x</source>
        <translation>x de départ</translation>
    </message>
    <message>
        <source>Start y</source>
        <translation>y de départ</translation>
    </message>
    <message>
        <source>End x</source>
        <translation>x final</translation>
    </message>
    <message>
        <source>Step h</source>
        <translation>Pas h</translation>
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
        <translation>Limites par epsilon et delta</translation>
    </message>
    <message>
        <source>ε and δ</source>
        <translation>ε et δ</translation>
    </message>
    <message>
        <source>Find &amp;L</source>
        <translation>Trouver &amp;L</translation>
    </message>
    <message>
        <source>Fin&amp;d δ</source>
        <translation>Trouver &amp;δ</translation>
    </message>
    <message>
        <source>&amp;Halve ε</source>
        <translation>Diviser ε par &amp;2</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Epsilon and delta</source>
        <translation>Epsilon et delta</translation>
    </message>
    <message>
        <source>Type a number for a.</source>
        <translation>Saisissez un nombre pour a.</translation>
    </message>
    <message>
        <source>   (the window&apos;s edge)</source>
        <translation>   (le bord de la fenêtre)</translation>
    </message>
    <message>
        <source>near a</source>
        <translation>près de a</translation>
    </message>
    <message>
        <source>(none in the window)</source>
        <translation>(aucun dans la fenêtre)</translation>
    </message>
    <message>
        <source>the band L = %1 ± ε = %2 about a = %3 for %4</source>
        <translation>la bande L = %1 ± ε = %2 autour de a = %3 pour %4</translation>
    </message>
    <message>
        <source>the point a</source>
        <translation>le point a</translation>
    </message>
    <message>
        <source>This screen shows what the limit of f(x) as x approaches a means: for every ε &gt; 0 there is a δ &gt; 0 such that every x with 0 &lt; |x - a| &lt; δ has |f(x) - L| &lt; ε.  You choose ε; the screen finds the largest δ.</source>
        <translation>Cet écran montre ce que signifie la limite de f(x) quand x tend vers a : pour tout ε &gt; 0 il existe δ &gt; 0 tel que tout x avec 0 &lt; |x - a| &lt; δ vérifie |f(x) - L| &lt; ε. Vous choisissez ε ; l&apos;écran trouve le plus grand δ.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function (for instance sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) or sin(1/x)).  Type the point a (or click the green label a =: left button up by one, right button down) and the limit L, or press [Find L]: it looks at f(a - h) and f(a + h) as h halves forty times, down to about 1e-12 times max(1, |a|), and says whether both sides settle on one value (six values in a row agreeing to 1e-5), settle on different values, grow without bound or do not settle.</source>
        <translation>Choisissez une fonction dans le menu et choisissez A à E, ou tapez-en une avec Outils, Taper une fonction (par exemple sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) ou sin(1/x)). Saisissez le point a (ou cliquez sur l&apos;étiquette verte a = : bouton gauche plus un, droit moins un) et la limite L, ou appuyez sur [Trouver L] : il examine f(a - h) et f(a + h) pendant que h est divisé par deux quarante fois, jusqu&apos;à environ 1e-12 fois max(1, |a|), et dit si les deux côtés se stabilisent sur une valeur (six valeurs de suite concordant à 1e-5 près), se stabilisent sur des valeurs différentes, croissent sans borne ou ne se stabilisent pas.</translation>
    </message>
    <message>
        <source>[Find δ] and [Halve ε]</source>
        <translation>[Trouver δ] et [Diviser ε par 2]</translation>
    </message>
    <message>
        <source>[Find δ] shades the band L ± ε in green and the band a ± δ in cyan, with the largest δ for which the graph stays in the green band, and marks in red where the graph first leaves it.  [Halve ε] halves ε and looks again; clicking the green label ε = halves it with the left button and doubles it with the right.  Each ε adds a row to the table: ε, δ, δ/ε and where the graph leaves the band, so that you can watch δ shrink with ε.  Where points as close to a as the search looks leave the band, the screen says that no δ works for that ε: f has no limit at a, or L is not it.</source>
        <translation>[Trouver δ] ombre en vert la bande L ± ε et en cyan la bande a ± δ, avec le plus grand δ pour lequel le graphique reste dans la bande verte, et marque en rouge l&apos;endroit où le graphique en sort d&apos;abord. [Diviser ε par 2] divise ε par deux et cherche de nouveau ; un clic sur l&apos;étiquette verte ε = le divise par deux avec le bouton gauche et le double avec le droit. Chaque ε ajoute une ligne au tableau : ε, δ, δ/ε et l&apos;endroit où le graphique sort de la bande, pour voir δ diminuer avec ε. Là où des points aussi proches de a que la recherche regarde sortent de la bande, l&apos;écran dit qu&apos;aucun δ ne convient pour cet ε : f n&apos;a pas de limite en a, ou ce n&apos;est pas L.</translation>
    </message>
    <message>
        <source>How δ is found</source>
        <translation>Comment δ est trouvé</translation>
    </message>
    <message>
        <source>This is a numerical search, not a proof.  On each side of a, f is checked at about 7000 points: a dense cluster from 1e-13 times max(1, |a|), 64 points between each distance and its double, and 4096 evenly spread to the window&apos;s edge.  Between the last point inside the band and the first outside, the search checks sixteen pieces again and again until δ is known to 1e-12 of itself.  Points where f is undefined are not in its domain and are left out.  A narrow spike between samples can be missed.</source>
        <translation>C&apos;est une recherche numérique, pas une démonstration. De chaque côté de a, f est évaluée en environ 7000 points : un amas dense à partir de 1e-13 fois max(1, |a|), 64 points entre chaque distance et son double, et 4096 répartis régulièrement jusqu&apos;au bord de la fenêtre. Entre le dernier point dans la bande et le premier en dehors, la recherche vérifie seize morceaux encore et encore jusqu&apos;à connaître δ à 1e-12 près de lui-même. Les points où f n&apos;est pas définie ne sont pas dans son domaine et sont laissés de côté. Un pic étroit entre deux échantillons peut être manqué.</translation>
    </message>
    <message>
        <source>Holes and dots</source>
        <translation>Trous et points</translation>
    </message>
    <message>
        <source>A filled dot marks (a, f(a)) where f is defined at a; an open circle marks (a, L) where f(a) is undefined or differs from L.</source>
        <translation>Un point plein marque (a, f(a)) là où f est définie en a ; un cercle vide marque (a, L) là où f(a) n&apos;est pas définie ou diffère de L.</translation>
    </message>
    <message>
        <source>The Mean Value Theorem</source>
        <translation>Le théorème des accroissements finis</translation>
    </message>
    <message>
        <source>MVT Set Up</source>
        <translation>Mise en place des AF</translation>
    </message>
    <message>
        <source>Left endpt</source>
        <translation>Extrémité g.</translation>
    </message>
    <message>
        <source>Right endpt</source>
        <translation>Extrémité d.</translation>
    </message>
    <message>
        <source>Apply to Graph</source>
        <translation>Appliquer au graphique</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Pente</translation>
    </message>
    <message>
        <source>Find c</source>
        <translation>Trouver c</translation>
    </message>
    <message>
        <source>Use the Slider</source>
        <translation>Utiliser le curseur</translation>
    </message>
    <message>
        <source>Slope = </source>
        <translation>Pente = </translation>
    </message>
    <message>
        <source>Values of c</source>
        <translation>Valeurs de c</translation>
    </message>
    <message>
        <source>the secant over [a, b]</source>
        <translation>la sécante sur [a, b]</translation>
    </message>
    <message>
        <source>ERROR!  0/0</source>
        <translation>ERREUR !  0/0</translation>
    </message>
    <message>
        <source>Enter an x value to check</source>
        <translation>Saisissez une valeur de x à vérifier</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>Saisir X</translation>
    </message>
    <message>
        <source>the points c</source>
        <translation>les points c</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the Mean Value Theorem.  Most of the function selections are continuous so it may be applied to most of them, at least you can define a continuous interval.</source>
        <translation>Cet écran sert à illustrer le théorème des accroissements finis. La plupart des fonctions proposées sont continues, il s&apos;applique donc à la plupart d&apos;entre elles ; du moins peut-on choisir un intervalle où elles sont continues.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Pour commencer</translation>
    </message>
    <message>
        <source>To get started, select a function from the pull down menu or click on the function to get another one.  Select the values for A to E for the function and [Plotto].  The right side of the screen is to setup the interval or a and b end points.  Once you have entered the end points, Click [Apply to Graph].  This will plot the line and calculate the points and slope.</source>
        <translation>Pour commencer, choisissez une fonction dans le menu déroulant ou cliquez sur la fonction pour en obtenir une autre. Choisissez les valeurs de A à E pour la fonction et cliquez sur [Plotto]. La partie droite de l&apos;écran sert à régler l&apos;intervalle, c&apos;est-à-dire les extrémités a et b. Une fois les extrémités saisies, cliquez sur [Appliquer au graphique]. Cela trace la droite et calcule les points et la pente.</translation>
    </message>
    <message>
        <source>Find c --- Three Ways</source>
        <translation>Trouver c --- trois façons</translation>
    </message>
    <message>
        <source>There are many ways to find c, the value guaranteed by the MVT.  1)Use the Slider to approximate where c would be on the (a,b) interval.  Each time you move the slider or click on the arrow the tangent line will be graphed and its slope determined at the point.  You can keep moving the slider until the slope from the setup matches the slope at the point. 2) Click on the &apos;x =&apos; label.  You will be asked to enter a value for x.  The slider will automatically move to the point and show the tangent line and its slope.  3) Click on [Find c].  This button will find all points(up to 20) on the graph having the same slope as the secant line.  They are listed in a chart.</source>
        <translation>Il y a plusieurs façons de trouver c, la valeur garantie par le théorème. 1) Utilisez le curseur pour estimer où se trouve c dans l&apos;intervalle (a,b). Chaque fois que vous déplacez le curseur ou cliquez sur la flèche, la tangente est tracée et sa pente calculée au point. Vous pouvez déplacer le curseur jusqu&apos;à ce que la pente des réglages égale la pente au point. 2) Cliquez sur l&apos;étiquette « x = ». Une valeur de x vous est demandée. Le curseur se place automatiquement au point et montre la tangente et sa pente. 3) Cliquez sur [Trouver c]. Ce bouton trouve tous les points (jusqu&apos;à 20) du graphique ayant la même pente que la sécante. Ils sont listés dans un tableau.</translation>
    </message>
    <message>
        <source>Accuracy Problems</source>
        <translation>Problèmes de précision</translation>
    </message>
    <message>
        <source>There are some accuracy considerations when using [Find c].  The slopes are compared to the nearest 0.001.  The calculated slope from the end points may differ from the slope of the tangent line.  Some MVT points may be missed due the accuracy when scannning through the function for the points.  This usually does not happen unless your interval is wide and there are rapid fluctuations like sin(20x).</source>
        <translation>La précision compte quand on utilise [Trouver c]. Les pentes sont comparées à 0,001 près. La pente calculée à partir des extrémités peut différer de la pente de la tangente. Certains points du théorème peuvent être manqués à cause de la précision du balayage de la fonction. Cela n&apos;arrive en général que si l&apos;intervalle est large et qu&apos;il y a des oscillations rapides comme sin(20x).</translation>
    </message>
    <message>
        <source>Secant from %1 to %2, %3.</source>
        <translation>Sécante de %1 à %2, %3.</translation>
    </message>
    <message>
        <source>Slider point %1, %2.</source>
        <translation>Point du curseur %1, %2.</translation>
    </message>
    <message>
        <source>Newton&apos;s Method and Derivatives</source>
        <translation>Méthode de Newton et dérivées</translation>
    </message>
    <message>
        <source>Newton&apos;s Method</source>
        <translation>Méthode de Newton</translation>
    </message>
    <message>
        <source>Guess:</source>
        <translation>Estimation :</translation>
    </message>
    <message>
        <source>Apply Newton&apos;s</source>
        <translation>Appliquer Newton</translation>
    </message>
    <message>
        <source>Graph &amp;Derivative</source>
        <translation>Tracer la &amp;dérivée</translation>
    </message>
    <message>
        <source>Guesses</source>
        <translation>Estimations</translation>
    </message>
    <message>
        <source>Guess #</source>
        <translation>Estimation n°</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source> (no f(x) here)</source>
        <translation> (pas de f(x) ici)</translation>
    </message>
    <message>
        <source> (no f&apos;(x) here)</source>
        <translation> (pas de f&apos;(x) ici)</translation>
    </message>
    <message>
        <source> (too large)</source>
        <translation> (trop grand)</translation>
    </message>
    <message>
        <source>This guess failed due to zero for the slope</source>
        <translation>Cette estimation a échoué car la pente est nulle</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message>
        <source>the derivative of </source>
        <translation>la dérivée de </translation>
    </message>
    <message>
        <source>This screen is used to demonstrate Newton&apos;s method for finding roots(x-intercepts) of functions.  Along the way you can graph the derivatives of functions too.</source>
        <translation>Cet écran sert à illustrer la méthode de Newton pour trouver les racines (intersections avec l&apos;axe des x) des fonctions. Au passage, vous pouvez aussi tracer les dérivées des fonctions.</translation>
    </message>
    <message>
        <source>Newton&apos;s method simple takes a guess, uses the slope of the function at the (x={guess},y) point to plot where this tangent line will intercept the x-axis.  This becomes the second guess and is used in the same procedure to find the third and so on...  As your guesses get closer to the root, the function appears more linear like so you get very close.</source>
        <translation>La méthode de Newton prend simplement une estimation et utilise la pente de la fonction au point (x={estimation},y) pour tracer où cette tangente coupe l&apos;axe des x. Cela devient la deuxième estimation, utilisée de la même façon pour trouver la troisième, et ainsi de suite... Plus vos estimations se rapprochent de la racine, plus la fonction paraît linéaire, si bien que vous arrivez très près.</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Échecs</translation>
    </message>
    <message>
        <source>There may be some cases where Newton&apos;s Method fails.   This may be due to the nature of the function or the guess.</source>
        <translation>Il peut arriver que la méthode de Newton échoue. Cela peut tenir à la nature de la fonction ou à l&apos;estimation.</translation>
    </message>
    <message>
        <source>[Apply Newton&apos;s]</source>
        <translation>[Appliquer Newton]</translation>
    </message>
    <message>
        <source>To try Newton&apos;s method: select a function and the variables A to E.  Select a first guess at the right.  Click [Apply Newton&apos;s].  You should see the line drawn from your (x-guess, y) to the x-axis.  The second guess will appear in the guess box so you can [Apply Newton&apos;s] again.</source>
        <translation>Pour essayer la méthode de Newton : choisissez une fonction et les variables A à E. Choisissez une première estimation à droite. Cliquez sur [Appliquer Newton]. Vous voyez la droite tracée de votre (x-estimation, y) jusqu&apos;à l&apos;axe des x. La deuxième estimation apparaît dans la case d&apos;estimation pour que vous puissiez de nouveau [Appliquer Newton].</translation>
    </message>
    <message>
        <source>Change and Continue</source>
        <translation>Changer et continuer</translation>
    </message>
    <message>
        <source>Zoom in or change the window and Apply again.</source>
        <translation>Zoomez ou changez la fenêtre et appliquez de nouveau.</translation>
    </message>
    <message>
        <source>the first guess</source>
        <translation>la première estimation</translation>
    </message>
    <message>
        <source>Parametric Equation graphing</source>
        <translation>Tracé de courbes paramétrées</translation>
    </message>
    <message>
        <source>Select x &amp;&amp; y functions and enter their constants.</source>
        <translation>Choisissez les fonctions x &amp;&amp; y et saisissez leurs constantes.</translation>
    </message>
    <message>
        <source>Graphing Set up</source>
        <translation>Réglages du tracé</translation>
    </message>
    <message>
        <source>Initial  t =</source>
        <translation>t initial =</translation>
    </message>
    <message>
        <source>Final  t =</source>
        <translation>t final =</translation>
    </message>
    <message>
        <source>Number of Steps</source>
        <translation>Nombre de pas</translation>
    </message>
    <message>
        <source>Connected Points</source>
        <translation>Points reliés</translation>
    </message>
    <message>
        <source>Separate Points</source>
        <translation>Points séparés</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Suivi</translation>
    </message>
    <message>
        <source>Trace at t =</source>
        <translation>Suivi en t =</translation>
    </message>
    <message>
        <source>t - slider</source>
        <translation>curseur de t</translation>
    </message>
    <message>
        <source>Select &amp;x Function</source>
        <translation>Choisir la fonction &amp;x</translation>
    </message>
    <message>
        <source>Select &amp;y Function</source>
        <translation>Choisir la fonction &amp;y</translation>
    </message>
    <message>
        <source>The maximum number of steps is 32000</source>
        <translation>Le nombre maximal de pas est 32000</translation>
    </message>
    <message>
        <source>Exceeded Maximum</source>
        <translation>Maximum dépassé</translation>
    </message>
    <message>
        <source>the parametric curve</source>
        <translation>la courbe paramétrée</translation>
    </message>
    <message>
        <source>Type a parametric curve</source>
        <translation>Taper une courbe paramétrée</translation>
    </message>
    <message>
        <source>This screen allows you to graph parametric equations by defining the function for the x value and another equation for the y value.  The x and y values are functions of the variable t.</source>
        <translation>Cet écran permet de tracer des équations paramétriques en définissant une fonction pour la valeur de x et une autre équation pour la valeur de y. Les valeurs de x et de y sont des fonctions de la variable t.</translation>
    </message>
    <message>
        <source>How do I graph things?</source>
        <translation>Comment tracer ?</translation>
    </message>
    <message>
        <source>After selecting the functions by using the pull down menus for the x and y functions, enter the values you want for A...F.  You may click [Plotto!] to see what it looks like.</source>
        <translation>Après avoir choisi les fonctions dans les menus déroulants des fonctions x et y, saisissez les valeurs voulues pour A...F. Vous pouvez cliquer sur [Plotto!] pour voir ce que cela donne.</translation>
    </message>
    <message>
        <source>Graph Set Up</source>
        <translation>Réglages du tracé</translation>
    </message>
    <message>
        <source>Graphing Set Up at the right allows you to change the range of t, the number of steps used, and whether you want the points connected or not.  The initial set up is for a trig function and 1000 steps.  You may use any range and up to 32000 steps</source>
        <translation>Les Réglages du tracé, à droite, permettent de changer la plage de t, le nombre de pas et de relier ou non les points. Le réglage initial est pour une fonction trigonométrique et 1000 pas. Vous pouvez utiliser n&apos;importe quelle plage et jusqu&apos;à 32000 pas</translation>
    </message>
    <message>
        <source>Trace?</source>
        <translation>Suivi ?</translation>
    </message>
    <message>
        <source>Trace allows you to look at the point produced by any particular t value.  You may click in the box to change the value. As soon as you do you will see the (x,y) value below and the point appear on the graph.  You may also use the slider at the bottom to scroll to different values or even click on the slide or arrows to move the trace point on the graph.  THe slider does not show the t= value or change the box above it.</source>
        <translation>Le Suivi permet de voir le point produit par une valeur de t donnée. Vous pouvez cliquer dans la case pour changer la valeur. Dès que vous le faites, la valeur (x,y) s&apos;affiche dessous et le point apparaît sur le graphique. Vous pouvez aussi utiliser le curseur du bas pour passer à d&apos;autres valeurs, ou cliquer sur le curseur ou les flèches pour déplacer le point suivi sur le graphique. Le curseur n&apos;affiche pas la valeur t= et ne change pas la case au-dessus.</translation>
    </message>
    <message>
        <source>Left or Right clicks</source>
        <translation>Clics gauche ou droit</translation>
    </message>
    <message>
        <source>You may left click of right click on the labels for the entry boxes to raise of lower their values by 1.</source>
        <translation>Vous pouvez faire un clic gauche ou droit sur les étiquettes des cases de saisie pour augmenter ou diminuer leur valeur de 1.</translation>
    </message>
    <message>
        <source>Change the size of the window?</source>
        <translation>Changer la taille de la fenêtre ?</translation>
    </message>
    <message>
        <source>The buttons below [Plotto!] are what they say.  Zoom in will reduce the size by a factor of 2.  Zoom Out will enlarge the size by a factor of 2.  You may change the window size by clicking on any of the boxes showing teh ranges for x and y.</source>
        <translation>Les boutons sous [Plotto!] font ce qu&apos;ils disent. Zoom avant réduit la taille d&apos;un facteur 2. Zoom arrière l&apos;agrandit d&apos;un facteur 2. Vous pouvez changer la taille de la fenêtre en cliquant sur l&apos;une des cases qui montrent les plages de x et de y.</translation>
    </message>
    <message>
        <source>Parametric curve %1, %2 with A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</source>
        <translation>Courbe paramétrée %1, %2 avec A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</translation>
    </message>
    <message>
        <source>t from %1 to %2 in steps of %3, %4.</source>
        <translation>t de %1 à %2 par pas de %3, %4.</translation>
    </message>
    <message>
        <source>connected points</source>
        <translation>points reliés</translation>
    </message>
    <message>
        <source>separate points</source>
        <translation>points séparés</translation>
    </message>
    <message>
        <source>Trace at t = %1: %2.</source>
        <translation>Suivi en t = %1 : %2.</translation>
    </message>
    <message>
        <source>the traced point</source>
        <translation>le point suivi</translation>
    </message>
    <message>
        <source>Riemann and Other Sums</source>
        <translation>Sommes de Riemann et autres</translation>
    </message>
    <message>
        <source>&amp;Select a Function</source>
        <translation>&amp;Choisir une fonction</translation>
    </message>
    <message>
        <source>&amp;Clear Graph</source>
        <translation>&amp;Effacer le graphique</translation>
    </message>
    <message>
        <source>&amp;Set to Defaults</source>
        <translation>Valeurs par &amp;défaut</translation>
    </message>
    <message>
        <source>Left Endpoint</source>
        <translation>Extrémité gauche</translation>
    </message>
    <message>
        <source>Right Endpoint</source>
        <translation>Extrémité droite</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Point milieu</translation>
    </message>
    <message>
        <source>Trapezoidal</source>
        <translation>Trapèzes</translation>
    </message>
    <message>
        <source>Random point</source>
        <translation>Point aléatoire</translation>
    </message>
    <message>
        <source>A random point is picked on the equal width intervals </source>
        <translation>Un point aléatoire est choisi dans les intervalles de même largeur </translation>
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
        <translation>Intervalles de largeur aléatoire et un point dans chacun</translation>
    </message>
    <message>
        <source>Cut the scale in half</source>
        <translation>Diviser l&apos;échelle par deux</translation>
    </message>
    <message>
        <source>Convergence of the sums</source>
        <translation>Convergence des sommes</translation>
    </message>
    <message>
        <source>&amp;Erase Partitions</source>
        <translation>Effacer les &amp;subdivisions</translation>
    </message>
    <message>
        <source>Number of Partitions</source>
        <translation>Nombre de subdivisions</translation>
    </message>
    <message>
        <source>&amp;Double Partitions</source>
        <translation>&amp;Doubler les subdivisions</translation>
    </message>
    <message>
        <source>Automatically double Number of Partitions</source>
        <translation>Doubler automatiquement le nombre de subdivisions</translation>
    </message>
    <message>
        <source>Graph &amp;Partitions</source>
        <translation>Tracer les subdi&amp;visions</translation>
    </message>
    <message>
        <source>See the partitions from the Riemann Sums</source>
        <translation>Voir les subdivisions des sommes de Riemann</translation>
    </message>
    <message>
        <source>Left Boundary</source>
        <translation>Borne gauche</translation>
    </message>
    <message>
        <source>Right Boundary</source>
        <translation>Borne droite</translation>
    </message>
    <message>
        <source>AREA</source>
        <translation>AIRE</translation>
    </message>
    <message>
        <source>Area Sums</source>
        <translation>Sommes d&apos;aires</translation>
    </message>
    <message>
        <source>Check one to see partitions when clicking Graph Partitions</source>
        <translation>Cochez-en une pour voir les subdivisions en cliquant sur Tracer les subdivisions</translation>
    </message>
    <message>
        <source>Parts not even #</source>
        <translation>Nombre non pair</translation>
    </message>
    <message>
        <source>= error!</source>
        <translation>= erreur !</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Calcul en cours</translation>
    </message>
    <message>
        <source>= too large</source>
        <translation>= trop grand</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Aire</translation>
    </message>
    <message>
        <source>Partitions must be a positive number</source>
        <translation>Le nombre de subdivisions doit être positif</translation>
    </message>
    <message>
        <source>Positive only</source>
        <translation>Positif seulement</translation>
    </message>
    <message>
        <source>The limit to the number of partitions is 32000</source>
        <translation>Le nombre de subdivisions est limité à 32000</translation>
    </message>
    <message>
        <source>Limit Reached</source>
        <translation>Limite atteinte</translation>
    </message>
    <message>
        <source>This form was written to demonstrate various Riemann and other Sums used to find areas under functions.</source>
        <translation>Cet écran présente diverses sommes de Riemann et autres, utilisées pour calculer des aires sous des courbes.</translation>
    </message>
    <message>
        <source>Plotting a function and Sizing</source>
        <translation>Tracer une fonction et régler la taille</translation>
    </message>
    <message>
        <source>Select a Function from the functions menu.  Click [Plotto!] to see it in the window.  Set the window size by entering values for Xmin, Xmax, Ymin, and Ymax or in the boxes around the window.</source>
        <translation>Choisissez une fonction dans le menu des fonctions. Cliquez sur [Plotto!] pour la voir dans la fenêtre. Réglez la taille de la fenêtre en saisissant des valeurs pour Xmin, Xmax, Ymin et Ymax ou dans les cases autour de la fenêtre.</translation>
    </message>
    <message>
        <source>Plotto! , Zoom In and Set to Defaults</source>
        <translation>Plotto! , Zoom avant et Valeurs par défaut</translation>
    </message>
    <message>
        <source>You must [Plotto!] after selecting a function to see it.  This also clears the window.  The [Zoom In] button reduces each edge in half and re-graphs the function. The [Set to Defaults] are -10 by 10.</source>
        <translation>Vous devez cliquer sur [Plotto!] après avoir choisi une fonction pour la voir. Cela efface aussi la fenêtre. Le bouton [Zoom avant] divise chaque bord par deux et retrace la fonction. Les [Valeurs par défaut] vont de -10 à 10.</translation>
    </message>
    <message>
        <source>Riemann choices and [Graph Partitions]</source>
        <translation>Choix de Riemann et [Tracer les subdivisions]</translation>
    </message>
    <message>
        <source>Check the box for a Riemann Sum method at the right.  The rectangles and the computed areas will appear after clicking the [Graph Partitions] Button.  You may click one, many or all the check boxes to see the various area values.</source>
        <translation>Cochez à droite la case d&apos;une méthode de somme de Riemann. Les rectangles et les aires calculées apparaissent après un clic sur le bouton [Tracer les subdivisions]. Vous pouvez cocher une, plusieurs ou toutes les cases pour voir les différentes valeurs de l&apos;aire.</translation>
    </message>
    <message>
        <source>Partitions for the Riemann Sums</source>
        <translation>Subdivisions des sommes de Riemann</translation>
    </message>
    <message>
        <source>You may type in up to 32000 for the number of partitions.  You may also automatically double the number of partitions with the [Double Partitions] button.  The number of partitions determines the width of each interval except for the Riemann method.  The Riemann method breaks the total interval into random width sub-intervals and selects random points in each sub-interval.  The Riemann method only uses a maximum of 2000 partitions.</source>
        <translation>Vous pouvez saisir jusqu&apos;à 32000 comme nombre de subdivisions. Vous pouvez aussi doubler automatiquement le nombre de subdivisions avec le bouton [Doubler les subdivisions]. Le nombre de subdivisions détermine la largeur de chaque intervalle, sauf pour la méthode de Riemann. La méthode de Riemann découpe l&apos;intervalle total en sous-intervalles de largeur aléatoire et choisit des points aléatoires dans chacun. La méthode de Riemann utilise au plus 2000 subdivisions.</translation>
    </message>
    <message>
        <source>Left and Right Boundaries</source>
        <translation>Bornes gauche et droite</translation>
    </message>
    <message>
        <source>The Left boundary and Right boundary determine the width of the interval for the area.  The Boundaries must be in the window.  If the y value is outside the window the partition will not show up on the graph but the area will be computed correctly.</source>
        <translation>Les bornes gauche et droite déterminent la largeur de l&apos;intervalle pour l&apos;aire. Les bornes doivent être dans la fenêtre. Si la valeur de y est hors de la fenêtre, la subdivision n&apos;apparaît pas sur le graphique mais l&apos;aire est calculée correctement.</translation>
    </message>
    <message>
        <source>Clicking light green labels</source>
        <translation>Cliquer sur les étiquettes vert clair</translation>
    </message>
    <message>
        <source>As for most of the light green labels in this program, you may left click to increase the box by one or right click to decreased it by one.</source>
        <translation>Comme pour la plupart des étiquettes vert clair de ce programme, un clic gauche augmente la case de un et un clic droit la diminue de un.</translation>
    </message>
    <message>
        <source>Area under %1 from %2 to %3 with %4 partitions: %5.</source>
        <translation>Aire sous %1 de %2 à %3 avec %4 subdivisions : %5.</translation>
    </message>
    <message>
        <source>The Tangent Line Problem</source>
        <translation>Le problème de la tangente</translation>
    </message>
    <message>
        <source>Tangent Problem Set up</source>
        <translation>Réglages du problème de la tangente</translation>
    </message>
    <message>
        <source>Tangent at x =</source>
        <translation>Tangente en x =</translation>
    </message>
    <message>
        <source>Delta x</source>
        <translation>Delta x</translation>
    </message>
    <message>
        <source>&amp;Apply to graph</source>
        <translation>&amp;Appliquer au graphique</translation>
    </message>
    <message>
        <source>Half Delta x</source>
        <translation>Diviser delta x par deux</translation>
    </message>
    <message>
        <source>Delta X slider</source>
        <translation>Curseur de delta x</translation>
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
        <translation>Résultats de la sécante</translation>
    </message>
    <message>
        <source>( ___, ___ ) to ( ___ , ___ )</source>
        <translation>( ___, ___ ) à ( ___ , ___ )</translation>
    </message>
    <message>
        <source>Line Equation</source>
        <translation>Équation de la droite</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the classic slope of the tangent line problem.  You may select any function from the menu.  Choose values for the A,B,...,E variables for your function and Plotto.</source>
        <translation>Cet écran sert à illustrer le problème classique de la pente de la tangente. Vous pouvez choisir n&apos;importe quelle fonction dans le menu. Choisissez les valeurs des variables A,B,...,E de votre fonction et cliquez sur Plotto.</translation>
    </message>
    <message>
        <source>Tangent Set up Selections</source>
        <translation>Réglages du problème de la tangente</translation>
    </message>
    <message>
        <source>The secant lines will be graphed using the buttons, text boxes and glider at the right.  Select the initial point for the secant line by placing a value in the &apos;Tangent at x =&apos; box.  Choose the Delta x.  This the distance from your choice of x and is the longest distance for the slider.  The delta x may be negative.  The slider may be scrolled to either side of your initial x.</source>
        <translation>Les sécantes sont tracées à l&apos;aide des boutons, des cases de texte et du curseur à droite. Choisissez le point initial de la sécante en saisissant une valeur dans la case « Tangente en x = ». Choisissez le Delta x. C&apos;est la distance à partir du x choisi et la plus grande distance du curseur. Le delta x peut être négatif. Le curseur peut aller de part et d&apos;autre de votre x initial.</translation>
    </message>
    <message>
        <source>Show the secants and the results</source>
        <translation>Afficher les sécantes et les résultats</translation>
    </message>
    <message>
        <source>Clicking on [Apply It] will draw the secant line and show the points on the graph and the equation of the line.  If you click on [Half Delta x], your delta x will be cut in half.  You may click [Apply It] to see the new line.</source>
        <translation>Un clic sur [Appliquer] trace la sécante et montre les points sur le graphique et l&apos;équation de la droite. Si vous cliquez sur [Diviser delta x par deux], votre delta x est divisé par deux. Vous pouvez cliquer sur [Appliquer] pour voir la nouvelle droite.</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Curseur</translation>
    </message>
    <message>
        <source>Clicking or scrolling the slider will change delta x and graph the secant line when releasing the mouse button.  You may see the points and the equation for each new change of the slider.  Notice the x-dx, x=  , and x+dx at the bottom of the slider.  This should help to know which way your secant line is going.</source>
        <translation>Cliquer sur le curseur ou le faire glisser change delta x et trace la sécante au relâchement du bouton de la souris. Vous voyez les points et l&apos;équation à chaque nouveau changement du curseur. Remarquez x-dx, x=  et x+dx sous le curseur. Cela aide à savoir dans quel sens va votre sécante.</translation>
    </message>
    <message>
        <source>No exact tangent: x = %1 is not a number.</source>
        <translation>Pas de tangente exacte : x = %1 n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>The tangent at x = %1 has no slope there.</source>
        <translation>La tangente en x = %1 n&apos;a pas de pente à cet endroit.</translation>
    </message>
    <message>
        <source>The exact tangent at x = %1: y = %2x + %3.</source>
        <translation>La tangente exacte en x = %1 : y = %2x + %3.</translation>
    </message>
    <message>
        <source>the point of tangency</source>
        <translation>le point de tangence</translation>
    </message>
    <message>
        <source>the point at x + Delta x</source>
        <translation>le point en x + Delta x</translation>
    </message>
    <message>
        <source>Taylor Polynomials</source>
        <translation>Polynômes de Taylor</translation>
    </message>
    <message>
        <source>Centre a =</source>
        <translation>Centre a =</translation>
    </message>
    <message>
        <source>&amp;Add a Term</source>
        <translation>&amp;Ajouter un terme</translation>
    </message>
    <message>
        <source>Remo&amp;ve a Term</source>
        <translation>&amp;Retirer un terme</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>Degree: none</source>
        <translation>Degré : aucun</translation>
    </message>
    <message>
        <source>at x =</source>
        <translation>en x =</translation>
    </message>
    <message>
        <source>&amp;Lagrange bound</source>
        <translation>Borne de &amp;Lagrange</translation>
    </message>
    <message>
        <source>Taylor terms</source>
        <translation>Termes de Taylor</translation>
    </message>
    <message>
        <source>family %1</source>
        <translation>famille %1</translation>
    </message>
    <message>
        <source>No Taylor polynomial of degree %1 about a = %2: %3.</source>
        <translation>Pas de polynôme de Taylor de degré %1 en a = %2 : %3.</translation>
    </message>
    <message>
        <source>P_%1 about a = %2 in red%3; the green band on the x axis is where |f - P_%1| &lt; %4.</source>
        <translation>P_%1 en a = %2 en rouge%3 ; la bande verte sur l&apos;axe des x montre où |f - P_%1| &lt; %4.</translation>
    </message>
    <message>
        <source>, P_%1 faint</source>
        <translation>, P_%1 pâle</translation>
    </message>
    <message>
        <source> Degree %1 is the last this screen works out.</source>
        <translation> Le degré %1 est le dernier que calcule cet écran.</translation>
    </message>
    <message>
        <source>the Taylor polynomial of degree %1 about %2 of %3</source>
        <translation>le polynôme de Taylor de degré %1 en %2 de %3</translation>
    </message>
    <message>
        <source>Degree: %1</source>
        <translation>Degré : %1</translation>
    </message>
    <message>
        <source> At x = %1 the new term is past double precision: it changes no digit of P_%2 a double can hold.</source>
        <translation> En x = %1 le nouveau terme dépasse la double précision : il ne change aucun chiffre de P_%2 qu&apos;un double puisse contenir.</translation>
    </message>
    <message>
        <source>past double precision</source>
        <translation>au-delà de la double précision</translation>
    </message>
    <message>
        <source>the centre a</source>
        <translation>le centre a</translation>
    </message>
    <message>
        <source>Degree %1. Terms: </source>
        <translation>Degré %1. Termes : </translation>
    </message>
    <message>
        <source>This screen builds the Taylor polynomial of a function about a centre a one term at a time, so that you can see the polynomial hug the curve over a wider and wider stretch as the degree grows.</source>
        <translation>Cet écran construit le polynôme de Taylor d&apos;une fonction en un centre a, un terme à la fois, pour que vous voyiez le polynôme épouser la courbe sur un intervalle de plus en plus large quand le degré augmente.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function.  Type the centre a in its box, or click the green label to move it by one (left button up, right button down).</source>
        <translation>Choisissez une fonction dans le menu et choisissez A à E, ou tapez-en une avec Outils, Taper une fonction. Saisissez le centre a dans sa case, ou cliquez sur l&apos;étiquette verte pour le déplacer de un (bouton gauche vers le haut, droit vers le bas).</translation>
    </message>
    <message>
        <source>[Add a Term] and [Remove a Term]</source>
        <translation>[Ajouter un terme] et [Retirer un terme]</translation>
    </message>
    <message>
        <source>Each click of [Add a Term] adds the next term, f^(n)(a)(x - a)^n / n!.  The function is drawn in blue, the polynomial of the degree shown in red and the one before it in light red.  [Remove a Term] goes back a degree.</source>
        <translation>Chaque clic sur [Ajouter un terme] ajoute le terme suivant, f^(n)(a)(x - a)^n / n!. La fonction est tracée en bleu, le polynôme du degré affiché en rouge et le précédent en rouge clair. [Retirer un terme] revient d&apos;un degré.</translation>
    </message>
    <message>
        <source>The light green band along the x axis marks where the polynomial is within the tolerance of the function.  Watch it widen as terms are added.</source>
        <translation>La bande vert clair le long de l&apos;axe des x marque où le polynôme reste dans la tolérance de la fonction. Regardez-la s&apos;élargir à mesure que des termes s&apos;ajoutent.</translation>
    </message>
    <message>
        <source>The grid</source>
        <translation>Le tableau</translation>
    </message>
    <message>
        <source>Each row is a degree: its new term with exact coefficients where they are fractions, the polynomial&apos;s value at the x you choose above the grid, and the error f(x) - P(x).  Tick Lagrange bound to see how large the error can be at most.  Where a derivative does not exist at a, or the numbers outgrow the computer&apos;s precision, the grid says so in words.</source>
        <translation>Chaque ligne est un degré : son nouveau terme avec des coefficients exacts quand ce sont des fractions, la valeur du polynôme au x choisi au-dessus du tableau, et l&apos;erreur f(x) - P(x). Cochez Borne de Lagrange pour voir jusqu&apos;où l&apos;erreur peut aller au plus. Là où une dérivée n&apos;existe pas en a, ou quand les nombres dépassent la précision de l&apos;ordinateur, le tableau le dit en toutes lettres.</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums + Others</source>
        <translation>Sommes de &amp;Riemann et autres</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums +</source>
        <translation>Sommes de &amp;Riemann +</translation>
    </message>
    <message>
        <source>Riemann and other sums</source>
        <translation>les sommes de Riemann et autres</translation>
    </message>
    <message>
        <source>Graph Classes of &amp;Functions</source>
        <translation>Tracer des classes de &amp;fonctions</translation>
    </message>
    <message>
        <source>&amp;Function Grapher</source>
        <translation>&amp;Traceur de fonctions</translation>
    </message>
    <message>
        <source>graphing {families} families of functions</source>
        <translation>le tracé de {families} familles de fonctions</translation>
    </message>
    <message>
        <source>&amp;Animate Graphs</source>
        <translation>&amp;Animer les graphiques</translation>
    </message>
    <message>
        <source>&amp;Animate Functions</source>
        <translation>&amp;Animer les fonctions</translation>
    </message>
    <message>
        <source>animating their coefficients</source>
        <translation>l&apos;animation de leurs coefficients</translation>
    </message>
    <message>
        <source>&amp;Slope Fields</source>
        <translation>&amp;Champs de directions</translation>
    </message>
    <message>
        <source>slope fields with integral curves and Euler and Runge-Kutta approximations</source>
        <translation>les champs de directions avec courbes intégrales et approximations d&apos;Euler et de Runge-Kutta</translation>
    </message>
    <message>
        <source>&amp;Newton&apos;s Method</source>
        <translation>Méthode de &amp;Newton</translation>
    </message>
    <message>
        <source>Newton&apos;s method</source>
        <translation>la méthode de Newton</translation>
    </message>
    <message>
        <source>&amp;Tangent Line Problem</source>
        <translation>Problème de la &amp;tangente</translation>
    </message>
    <message>
        <source>&amp;Tangent Problem</source>
        <translation>Problème de la tan&amp;gente</translation>
    </message>
    <message>
        <source>secant lines converging to the tangent</source>
        <translation>des sécantes qui tendent vers la tangente</translation>
    </message>
    <message>
        <source>The &amp;Mean Value Theorem</source>
        <translation>&amp;Le théorème des accroissements finis</translation>
    </message>
    <message>
        <source>&amp;Mean Value Theorem</source>
        <translation>Théorème des accroissements &amp;finis</translation>
    </message>
    <message>
        <source>the mean value theorem</source>
        <translation>le théorème des accroissements finis</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphing</source>
        <translation>Tracé &amp;paramétrique</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphs</source>
        <translation>Courbes &amp;paramétrées</translation>
    </message>
    <message>
        <source>parametric curves</source>
        <translation>les courbes paramétrées</translation>
    </message>
    <message>
        <source>&amp;Taylor Polynomials</source>
        <translation>Polynômes de &amp;Taylor</translation>
    </message>
    <message>
        <source>Taylor polynomials term by term</source>
        <translation>les polynômes de Taylor terme à terme</translation>
    </message>
    <message>
        <source>&amp;Area Between Curves</source>
        <translation>&amp;Aire entre deux courbes</translation>
    </message>
    <message>
        <source>the area between two curves</source>
        <translation>l&apos;aire entre deux courbes</translation>
    </message>
    <message>
        <source>&amp;Limits by Epsilon and Delta</source>
        <translation>&amp;Limites par epsilon et delta</translation>
    </message>
    <message>
        <source>limits by epsilon and delta</source>
        <translation>les limites par epsilon et delta</translation>
    </message>
    <message>
        <source>Plotto!   Calculus Calculator</source>
        <translation>Plotto!   Calculatrice d&apos;analyse</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Selections</source>
        <translation>&amp;Sélections</translation>
    </message>
    <message>
        <source>More &amp;Demonstrations</source>
        <translation>&amp;Autres démonstrations</translation>
    </message>
    <message>
        <source>Choose a demonstration</source>
        <translation>Choisissez une démonstration</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>The screens you open from now on speak this language; the launcher does from the next start of Plotto.</source>
        <translation>Les écrans que vous ouvrez désormais parlent cette langue ; le lanceur, au prochain démarrage de Plotto.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>This program was made to graphically illustrate a few Calculus concepts.  They are shown on the buttons and the pull down menu.  The &apos;About&apos; menu option for each screen will explain the use of that screen.</source>
        <translation>Ce programme a été fait pour illustrer graphiquement quelques notions d&apos;analyse. Elles figurent sur les boutons et dans le menu déroulant. L&apos;option « À propos » de chaque écran en explique l&apos;utilisation.</translation>
    </message>
    <message>
        <source>Calculus Demonstrations</source>
        <translation>Démonstrations d&apos;analyse</translation>
    </message>
    <message>
        <source>This program is free.  Give it to your Calculus students or whoever could benefit from its use.  Send your questions and suggestions to the Plotto issue tracker.</source>
        <translation>Ce programme est libre. Donnez-le à vos élèves d&apos;analyse ou à quiconque peut en profiter. Envoyez vos questions et suggestions au suivi des problèmes de Plotto.</translation>
    </message>
    <message>
        <source>Distribute Freely</source>
        <translation>Distribution libre</translation>
    </message>
    <message>
        <source>Read the ABOUTs on each screen.  There are handy things to know about clicking labels on the screens.....</source>
        <translation>Lisez les « À propos » de chaque écran. Il y a des choses utiles à savoir sur les clics sur les étiquettes des écrans.....</translation>
    </message>
    <message>
        <source>More ABOUTs</source>
        <translation>Autres « À propos »</translation>
    </message>
    <message>
        <source>&amp;Lessons</source>
        <translation>&amp;Leçons</translation>
    </message>
    <message>
        <source>S&amp;tart the Lesson</source>
        <translation>&amp;Démarrer la leçon</translation>
    </message>
    <message>
        <source>&amp;Examples</source>
        <translation>E&amp;xemples</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message>
        <source>Open Lesson</source>
        <translation>Ouvrir une leçon</translation>
    </message>
    <message>
        <source>%1: step %2 (%3): %4.</source>
        <translation>%1 : étape %2 (%3) : %4.</translation>
    </message>
    <message>
        <source>Buttons to press when this step opens, by their captions, separated by commas (a button pressed more than once: Apply Newton&apos;s*4). Leave empty for none.</source>
        <translation>Boutons à presser à l&apos;ouverture de cette étape, par leurs libellés, séparés par des virgules (un bouton pressé plusieurs fois : Appliquer Newton*4). Laissez vide pour aucun.</translation>
    </message>
    <message>
        <source>Add to the Lesson</source>
        <translation>Ajouter à la leçon</translation>
    </message>
    <message>
        <source>The lesson has no steps yet: add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>La leçon n&apos;a pas encore d&apos;étapes : ajoutez un écran avec Outils, Ajouter cet écran à la leçon.</translation>
    </message>
    <message>
        <source>Save Lesson</source>
        <translation>Enregistrer la leçon</translation>
    </message>
    <message>
        <source>Cannot read the lesson %1: %2</source>
        <translation>Impossible de lire la leçon %1 : %2</translation>
    </message>
    <message>
        <source>Export Lesson as Worksheet</source>
        <translation>Exporter la leçon en fiche d&apos;exercices</translation>
    </message>
    <message>
        <source>There is no lesson to export: open one with Lessons, Open Lesson, or add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>Il n&apos;y a pas de leçon à exporter : ouvrez-en une avec Leçons, Ouvrir une leçon, ou ajoutez un écran avec Outils, Ajouter cet écran à la leçon.</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Leave the results blank, as boxes for the students to fill in? The answers then go to a second file, %1.</source>
        <translation>Laisser les résultats en blanc, en cases à remplir par les élèves ? Les réponses vont alors dans un second fichier, %1.</translation>
    </message>
    <message>
        <source>The lesson could not be handed over: %1</source>
        <translation>La leçon n&apos;a pas pu être transmise : %1</translation>
    </message>
    <message>
        <source>The worksheet was not written: %1</source>
        <translation>La fiche n&apos;a pas été écrite : %1</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Étape %1 sur %2 : %3</translation>
    </message>
    <message>
        <source>This step cannot be shown: %1.</source>
        <translation>Cette étape ne peut pas être affichée : %1.</translation>
    </message>
    <message>
        <source>A button of this step could not finish (run-time error %1).</source>
        <translation>Un bouton de cette étape n&apos;a pas pu se terminer (erreur d&apos;exécution %1).</translation>
    </message>
    <message>
        <source>The screen shows %1.</source>
        <translation>L&apos;écran montre %1.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>The lesson has no steps.</source>
        <translation>La leçon n&apos;a pas d&apos;étapes.</translation>
    </message>
    <message>
        <source>Area=</source>
        <translation>Aire=</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .csv or .pdf.</source>
        <translation>Le nom de fichier %1 n&apos;indique pas quel type de fichier écrire : terminez-le par .csv ou .pdf.</translation>
    </message>
    <message>
        <source>the PDF could not be started</source>
        <translation>le PDF n&apos;a pas pu être commencé</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exporter le tableau</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;PDF page (*.pdf)</source>
        <translation>Valeurs séparées par des virgules (*.csv);;Page PDF (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Export Table...</source>
        <translation>&amp;Exporter le tableau...</translation>
    </message>
    <message>
        <source>Two Curves</source>
        <translation>Deux courbes</translation>
    </message>
    <message>
        <source>Worksheets are written by the plotto program, which this run cannot start.</source>
        <translation>Les fiches d&apos;exercices sont écrites par le programme plotto, que cette exécution ne peut pas lancer.</translation>
    </message>
    <message>
        <source>are outside what a function accepts</source>
        <translation>sont hors de ce qu&apos;une fonction accepte</translation>
    </message>
    <message>
        <source>overflow</source>
        <translation>débordent</translation>
    </message>
    <message>
        <source>go past the end of a table</source>
        <translation>dépassent la fin d&apos;un tableau</translation>
    </message>
    <message>
        <source>divide by zero</source>
        <translation>divisent par zéro</translation>
    </message>
    <message>
        <source>are not numbers</source>
        <translation>ne sont pas des nombres</translation>
    </message>
    <message>
        <source>are more than a control can take</source>
        <translation>dépassent ce qu&apos;un contrôle peut recevoir</translation>
    </message>
    <message>
        <source>cannot be worked out</source>
        <translation>ne peuvent pas être calculées</translation>
    </message>
    <message>
        <source>The step of the lesson shown</source>
        <translation>L&apos;étape de la leçon affichée</translation>
    </message>
    <message>
        <source>Zoom to the &amp;Steps</source>
        <translation>Zoom sur les é&amp;tapes</translation>
    </message>
    <message>
        <source>The last two guesses are %1 apart; View, Zoom to the Steps shows the last steps.</source>
        <translation>Les deux dernières approximations sont à %1 l&apos;une de l&apos;autre ; Affichage, Zoom sur les étapes montre les dernières étapes.</translation>
    </message>
    <message>
        <source>No steps to zoom to yet: press Apply Newton&apos;s at least once.</source>
        <translation>Pas encore d&apos;étapes à cadrer : appuyez au moins une fois sur Appliquer Newton.</translation>
    </message>
    <message>
        <source>Step %1 cannot be shown: its values %2 (run-time error %3).</source>
        <translation>L&apos;étape %1 ne peut pas être affichée : ses valeurs %2 (erreur d&apos;exécution %3).</translation>
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
        <translation>rien n&apos;est saisi : saisissez une fonction, par exemple x^2 - 4 à la position %1</translation>
    </message>
    <message>
        <source>unexpected &apos;)&apos; at %1</source>
        <translation>&apos;)&apos; inattendu à la position %1</translation>
    </message>
    <message>
        <source>too deeply nested at %1</source>
        <translation>imbrication trop profonde à la position %1</translation>
    </message>
    <message>
        <source>missing a term after &apos;%1&apos; at %2</source>
        <translation>il manque un terme après &apos;%1&apos; à la position %2</translation>
    </message>
    <message>
        <source>missing a term at %1</source>
        <translation>il manque un terme à la position %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;)&apos; at %1</source>
        <translation>il manque un terme avant &apos;)&apos; à la position %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;%1&apos; at %2</source>
        <translation>il manque un terme avant &apos;%1&apos; à la position %2</translation>
    </message>
    <message>
        <source>missing &apos;)&apos; at %1</source>
        <translation>il manque &apos;)&apos; à la position %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (each function takes one argument) at %1</source>
        <translation>&apos;,&apos; inattendue (chaque fonction prend un seul argument) à la position %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (write decimals with a point, and each function takes one argument) at %1</source>
        <translation>&apos;,&apos; inattendue (écrivez les décimales avec un point ; chaque fonction prend un seul argument) à la position %1</translation>
    </message>
    <message>
        <source>unexpected character &apos;%1&apos; at %2</source>
        <translation>caractère inattendu &apos;%1&apos; à la position %2</translation>
    </message>
    <message>
        <source>missing &apos;*&apos;: write %1*%2 for a product at %3</source>
        <translation>il manque &apos;*&apos; : écrivez %1*%2 pour un produit à la position %3</translation>
    </message>
    <message>
        <source>a number needs a digit at %1</source>
        <translation>un nombre demande un chiffre à la position %1</translation>
    </message>
    <message>
        <source>number too large at %1</source>
        <translation>nombre trop grand à la position %1</translation>
    </message>
    <message>
        <source>missing &apos;(&apos; after &apos;%1&apos; at %2</source>
        <translation>il manque &apos;(&apos; après &apos;%1&apos; à la position %2</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2 (the coefficients are the capitals A to F)</source>
        <translation>nom inconnu &apos;%1&apos; à la position %2 (les coefficients sont les majuscules A à F)</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %4: write %2*%3 for a product</source>
        <translation>nom inconnu &apos;%1&apos; à la position %4 : écrivez %2*%3 pour un produit</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2</source>
        <translation>nom inconnu &apos;%1&apos; à la position %2</translation>
    </message>
    <message>
        <source>too long: at most %1 characters</source>
        <translation>trop long : au plus %1 caractères</translation>
    </message>
    <message>
        <source>cannot be evaluated</source>
        <translation>ne peut pas être évaluée</translation>
    </message>
    <message>
        <source>no derivative: it cannot be evaluated</source>
        <translation>pas de dérivée : elle ne peut pas être évaluée</translation>
    </message>
    <message>
        <source>no derivative: the expression is undefined everywhere or cannot be differentiated</source>
        <translation>pas de dérivée : l&apos;expression n&apos;est définie nulle part ou ne peut pas être dérivée</translation>
    </message>
    <message>
        <source>no derivative: part of the expression is 0 where it divides or is a base</source>
        <translation>pas de dérivée : une partie de l&apos;expression vaut 0 là où elle divise ou sert de base</translation>
    </message>
    <message>
        <source>no derivative: it uses a function that cannot be differentiated here</source>
        <translation>pas de dérivée : elle utilise une fonction qui ne peut pas être dérivée ici</translation>
    </message>
    <message>
        <source>no function chosen</source>
        <translation>aucune fonction choisie</translation>
    </message>
    <message>
        <source>an exponent of %1 is too large to work out exactly</source>
        <translation>un exposant de %1 est trop grand pour un calcul exact</translation>
    </message>
    <message>
        <source>part of the expression is 0 where it divides or is a base</source>
        <translation>une partie de l&apos;expression vaut 0 là où elle divise ou sert de base</translation>
    </message>
    <message>
        <source>the expression cannot be worked out exactly</source>
        <translation>l&apos;expression ne peut pas être calculée exactement</translation>
    </message>
    <message>
        <source>the coefficient is too large for double precision</source>
        <translation>le coefficient est trop grand pour la double précision</translation>
    </message>
    <message>
        <source>f(a) does not exist</source>
        <translation>f(a) n&apos;existe pas</translation>
    </message>
    <message>
        <source>f^(%1)(a) does not exist</source>
        <translation>f^(%1)(a) n&apos;existe pas</translation>
    </message>
    <message>
        <source>the derivative grows too long to work out</source>
        <translation>la dérivée devient trop longue à calculer</translation>
    </message>
    <message>
        <source>a must be a number.</source>
        <translation>a doit être un nombre.</translation>
    </message>
    <message>
        <source>Both sides tend to %1: L = %1 at a = %2 (estimated from x = a +- h, h halving to %3 times max(1, |a|); the last values agree to %4).</source>
        <translation>Les deux côtés tendent vers %1 : L = %1 en a = %2 (estimé à partir de x = a +- h, h divisé par deux jusqu&apos;à %3 fois max(1, |a|) ; les dernières valeurs concordent à %4 près).</translation>
    </message>
    <message>
        <source>f is defined only on the right of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f n&apos;est définie qu&apos;à droite de a près de a ; ce côté tend vers %1 : L = %1 en a = %2 (une limite à droite).</translation>
    </message>
    <message>
        <source>f is defined only on the left of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f n&apos;est définie qu&apos;à gauche de a près de a ; ce côté tend vers %1 : L = %1 en a = %2 (une limite à gauche).</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no limit there.</source>
        <translation>f n&apos;est définie d&apos;aucun côté près de a = %1 : pas de limite en ce point.</translation>
    </message>
    <message>
        <source>The left side %1 and the right side %2: no limit at a = %3.</source>
        <translation>Le côté gauche %1 et le côté droit %2 : pas de limite en a = %3.</translation>
    </message>
    <message>
        <source>tends to infinity</source>
        <translation>tend vers l&apos;infini</translation>
    </message>
    <message>
        <source>tends to -infinity</source>
        <translation>tend vers -l&apos;infini</translation>
    </message>
    <message>
        <source>tends to %1</source>
        <extracomment>what one side of a does as x nears a (&quot;The left side tends to 1 and ...&quot;)</extracomment>
        <translation>tend vers %1</translation>
    </message>
    <message>
        <source>to infinity</source>
        <translation>vers l&apos;infini</translation>
    </message>
    <message>
        <source>to -infinity</source>
        <translation>vers -l&apos;infini</translation>
    </message>
    <message>
        <source>to %1</source>
        <extracomment>the right side&apos;s clause when the left side&apos;s said &quot;tends&quot; (&quot;... and the right side to 2&quot;)</extracomment>
        <translation>vers %1</translation>
    </message>
    <message>
        <source>does not settle</source>
        <translation>ne se stabilise pas</translation>
    </message>
    <message>
        <source>is undefined</source>
        <translation>n&apos;est pas défini</translation>
    </message>
    <message>
        <source>ε must be a positive number.</source>
        <translation>ε doit être un nombre positif.</translation>
    </message>
    <message>
        <source>a and L must be numbers.</source>
        <translation>a et L doivent être des nombres.</translation>
    </message>
    <message>
        <source>a = %1 is not inside the window from %2 to %3: move a or widen the window to look for δ.</source>
        <translation>a = %1 n&apos;est pas dans la fenêtre de %2 à %3 : déplacez a ou élargissez la fenêtre pour chercher δ.</translation>
    </message>
    <message>
        <source>ε = %1 is below what rounding in f lets the computer tell apart from L = %2 (it must be at least %3): no δ is looked for.</source>
        <translation>ε = %1 est en dessous de ce que l&apos;arrondi de f permet à l&apos;ordinateur de distinguer de L = %2 (il doit valoir au moins %3) : aucun δ n&apos;est cherché.</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no δ can be looked for.</source>
        <translation>f n&apos;est définie d&apos;aucun côté près de a = %1 : aucun δ ne peut être cherché.</translation>
    </message>
    <message>
        <source>For ε = %1 no δ works: points arbitrarily close to a leave the band (even x = %2 has |f(x) - L| = %3, not below ε).</source>
        <translation>Pour ε = %1 aucun δ ne convient : des points arbitrairement proches de a sortent de la bande (même x = %2 a |f(x) - L| = %3, pas en dessous de ε).</translation>
    </message>
    <message>
        <source>For ε = %1 no x of the window leaves the band: δ = %2 is the distance from a to the window&apos;s nearer edge.</source>
        <translation>Pour ε = %1 aucun x de la fenêtre ne sort de la bande : δ = %2 est la distance de a au bord le plus proche de la fenêtre.</translation>
    </message>
    <message>
        <source>For ε = %1 the largest δ is %2: the graph first leaves the band at x = %3 (f = %4).</source>
        <translation>Pour ε = %1 le plus grand δ est %2 : le graphe sort de la bande pour la première fois en x = %3 (f = %4).</translation>
    </message>
    <message>
        <source>%1 f is not defined to the right of a: only x where it is defined count.</source>
        <translation>%1 f n&apos;est pas définie à droite de a : seuls comptent les x où elle est définie.</translation>
    </message>
    <message>
        <source>%1 f is not defined to the left of a: only x where it is defined count.</source>
        <translation>%1 f n&apos;est pas définie à gauche de a : seuls comptent les x où elle est définie.</translation>
    </message>
    <message>
        <source>%1 f is undefined at some x of the window: they are not in its domain and do not count.</source>
        <translation>%1 f n&apos;est pas définie en certains x de la fenêtre : ils ne sont pas dans son domaine et ne comptent pas.</translation>
    </message>
    <message>
        <source>x = %1 (f = g at a scanned point)</source>
        <translation>x = %1 (f = g en un point balayé)</translation>
    </message>
    <message>
        <source>x = %1 (sign change, TOMS 748)</source>
        <translation>x = %1 (changement de signe, TOMS 748)</translation>
    </message>
    <message>
        <source>x = %1 (touch without sign change, Brent minimum of |f - g|)</source>
        <translation>x = %1 (contact sans changement de signe, minimum de Brent de |f - g|)</translation>
    </message>
    <message>
        <source>x = %1 to %2 (f = g all along)</source>
        <translation>x = %1 à %2 (f = g tout du long)</translation>
    </message>
    <message>
        <source>a curve is not defined everywhere on [a, b]</source>
        <translation>une courbe n&apos;est pas définie partout sur [a, b]</translation>
    </message>
    <message>
        <source>f - g jumps across 0 without crossing it near x = %1</source>
        <translation>f - g saute par-dessus 0 sans le traverser près de x = %1</translation>
    </message>
    <message>
        <source>the integral of f - g does not settle between x = %1 and x = %2 (f - g is unbounded there, or oscillates faster than the adaptive rule can follow)</source>
        <translation>l&apos;intégrale de f - g ne se stabilise pas entre x = %1 et x = %2 (f - g n&apos;y est pas bornée, ou oscille plus vite que la règle adaptative ne peut suivre)</translation>
    </message>
    <message>
        <source>No area: %1.</source>
        <translation>Pas d&apos;aire : %1.</translation>
    </message>
    <message>
        <source>Signed area %1 (adaptive Gauss-Kronrod, 61 points, split at the crossings)</source>
        <translation>Aire algébrique %1 (Gauss-Kronrod adaptatif, 61 points, découpée aux croisements)</translation>
    </message>
    <message>
        <source>no value: %1</source>
        <translation>pas de valeur : %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <extracomment>a convergence table&apos;s cell: the error is below the reference&apos;s own accuracy %1</extracomment>
        <translation>inférieure à %1</translation>
    </message>
    <message>
        <source>(reference)</source>
        <extracomment>a convergence table&apos;s cell: the row&apos;s value is the reference itself</extracomment>
        <translation>(référence)</translation>
    </message>
    <message>
        <source>round-off</source>
        <extracomment>a convergence table&apos;s cell in place of a ratio, explained by the round-off note under the table</extracomment>
        <translation>arrondi</translation>
    </message>
    <message>
        <source>round-off: an error below %1 is mostly the rounding of double-precision arithmetic over the steps, not the method&apos;s own error, so its ratio is not shown.</source>
        <translation>arrondi : une erreur inférieure à %1 vient surtout de l&apos;arrondi de l&apos;arithmétique en double précision au fil des pas, non de l&apos;erreur propre de la méthode ; son rapport n&apos;est donc pas affiché.</translation>
    </message>
    <message>
        <source>slope %1</source>
        <extracomment>the label of a reference line of slope -%1 on the log-log plot</extracomment>
        <translation>pente %1</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>pas de valeur</translation>
    </message>
    <message>
        <source>undefined at x = %1</source>
        <translation>non définie en x = %1</translation>
    </message>
    <message>
        <source>error value</source>
        <translation>valeur d&apos;erreur</translation>
    </message>
    <message>
        <source>The function is not defined everywhere on the interval (for example at x = %1): the integral does not exist there.</source>
        <translation>La fonction n&apos;est pas définie partout sur l&apos;intervalle (par exemple en x = %1) : l&apos;intégrale n&apos;y existe pas.</translation>
    </message>
    <message>
        <source>The function is unbounded on the interval: the integral does not exist there.</source>
        <translation>La fonction n&apos;est pas bornée sur l&apos;intervalle : l&apos;intégrale n&apos;y existe pas.</translation>
    </message>
    <message>
        <source>Exact value %1 (adaptive Gauss-Kronrod, 61 points)</source>
        <translation>Valeur exacte %1 (Gauss-Kronrod adaptatif, 61 points)</translation>
    </message>
    <message>
        <source>The integral cannot be computed: %1.</source>
        <translation>L&apos;intégrale ne peut pas être calculée : %1.</translation>
    </message>
    <message>
        <source>Reference endpoint y = %1 (adaptive Runge-Kutta-Fehlberg 7(8) in extended precision; accurate to %2)</source>
        <translation>Point final de référence y = %1 (Runge-Kutta-Fehlberg 7(8) adaptatif en précision étendue ; précis à %2 près)</translation>
    </message>
    <message>
        <source>The curve meets a vertical slope before the end x: there is no endpoint to compare with.</source>
        <translation>La courbe rencontre une pente verticale avant le x final : il n&apos;y a pas de point final à comparer.</translation>
    </message>
    <message>
        <source>The reference cannot be computed: %1.</source>
        <translation>La référence ne peut pas être calculée : %1.</translation>
    </message>
    <message>
        <source>The adaptive integration could not reach the end x (the slope grows without bound).</source>
        <translation>L&apos;intégration adaptative n&apos;a pas pu atteindre le x final (la pente croît sans borne).</translation>
    </message>
    <message>
        <source>%1 (%2 steps)</source>
        <extracomment>a row of the step methods&apos; table: the step h (%1) and how many steps reach the end x (%2)</extracomment>
        <translation>%1 (%2 pas)</translation>
    </message>
    <message>
        <source>meets a vertical slope</source>
        <translation>rencontre une pente verticale</translation>
    </message>
    <message>
        <source>leaves the window</source>
        <translation>sort de la fenêtre</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>which of two typed texts a refusal is about (&quot;dy: missing &apos;)&apos; at 3&quot;): %1 names the text (dy, dx, x(t), y(t)) and %2 is the refusal</extracomment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers in order.</source>
        <translation>Les limites de la fenêtre ne sont pas des nombres dans l&apos;ordre.</translation>
    </message>
    <message>
        <source>Zoomed out as far as the graph goes: the window is at most 1E+12 wide and high.</source>
        <translation>Dézoomé autant que le graphe le permet : la fenêtre mesure au plus 1E+12 de large et de haut.</translation>
    </message>
    <message>
        <source>Zoomed in as far as the arithmetic can show: a closer window would draw rounding noise.</source>
        <translation>Zoomé autant que l&apos;arithmétique peut le montrer : une fenêtre plus proche tracerait du bruit d&apos;arrondi.</translation>
    </message>
    <message>
        <source>raise or lower %1</source>
        <translation>augmenter ou diminuer %1</translation>
    </message>
    <message>
        <source>Drawn: %1.</source>
        <translation>Tracé : %1.</translation>
    </message>
    <message>
        <source>the typed function y = %1</source>
        <translation>la fonction saisie y = %1</translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <extracomment>a function and its coefficients&apos; values (&quot;y = A*x^2 with A = 1, B = 0&quot;)</extracomment>
        <translation>%1 avec %2</translation>
    </message>
    <message>
        <source>Playing %1.</source>
        <translation>Lecture de %1.</translation>
    </message>
    <message>
        <source>Understood: y = %1
Derivative: y&apos; = %2</source>
        <translation>Compris : y = %1
Dérivée : y&apos; = %2</translation>
    </message>
    <message>
        <source>undefined: no f(x) at x = %1</source>
        <translation>non définie : pas de f(x) en x = %1</translation>
    </message>
    <message>
        <source>no slope: f&apos;(x) is undefined at x = %1</source>
        <translation>pas de pente : f&apos;(x) n&apos;est pas définie en x = %1</translation>
    </message>
    <message>
        <source> Not drawn at this window: %1.</source>
        <translation> Non tracé dans cette fenêtre : %1.</translation>
    </message>
    <message>
        <source>Cannot be drawn from here: %1.</source>
        <translation>Impossible à tracer d&apos;ici : %1.</translation>
    </message>
    <message>
        <source>Cannot be taken: %1</source>
        <translation>Impossible à prendre : %1</translation>
    </message>
    <message>
        <source>error %1</source>
        <extracomment>a convergence table&apos;s cell: the error of the value above it</extracomment>
        <translation>erreur %1</translation>
    </message>
    <message>
        <source>ratio %1</source>
        <extracomment>a convergence table&apos;s cell: the previous row&apos;s error over this row&apos;s</extracomment>
        <translation>rapport %1</translation>
    </message>
    <message>
        <source>Error against the number of partitions, log-log</source>
        <translation>Erreur en fonction du nombre de subdivisions, log-log</translation>
    </message>
    <message>
        <source>steps</source>
        <extracomment>the horizontal axis of the step methods&apos; convergence plot</extracomment>
        <translation>pas</translation>
    </message>
    <message>
        <source>error</source>
        <extracomment>the vertical axis of a convergence plot</extracomment>
        <translation>erreur</translation>
    </message>
    <message>
        <source>%1 error</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s errors</extracomment>
        <translation>erreur de %1</translation>
    </message>
    <message>
        <source>%1 ratio</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s ratios of successive errors</extracomment>
        <translation>rapport de %1</translation>
    </message>
    <message>
        <source>No errors to plot: %1</source>
        <translation>Pas d&apos;erreurs à tracer : %1</translation>
    </message>
    <message>
        <source>%1: too few measurable errors for a slope</source>
        <translation>%1 : trop peu d&apos;erreurs mesurables pour une pente</translation>
    </message>
    <message>
        <source>%1: slope %2 (expected -%3)</source>
        <translation>%1 : pente %2 (attendue -%3)</translation>
    </message>
    <message>
        <source>%1: slope %2</source>
        <translation>%1 : pente %2</translation>
    </message>
    <message>
        <source>g(x) = %1 cannot be read: %2.</source>
        <translation>g(x) = %1 ne peut pas être lue : %2.</translation>
    </message>
    <message>
        <source>%1 is not defined at x = %2</source>
        <translation>%1 n&apos;est pas définie en x = %2</translation>
    </message>
    <message>
        <source>%1 is not defined from x = %2 to x = %3</source>
        <translation>%1 n&apos;est pas définie de x = %2 à x = %3</translation>
    </message>
    <message>
        <source>Crossings in [a, b]:
%1</source>
        <translation>Croisements dans [a, b] :
%1</translation>
    </message>
    <message>
        <source>Understood: dy = %1,  dx = %2</source>
        <translation>Compris : dy = %1,  dx = %2</translation>
    </message>
    <message>
        <source>Start( %1 , %2 ) </source>
        <translation>Départ( %1 , %2 ) </translation>
    </message>
    <message>
        <source>the curve from (%1,%2)</source>
        <translation>la courbe depuis (%1,%2)</translation>
    </message>
    <message>
        <source>EndPt (%1,%2</source>
        <translation>Point final (%1,%2</translation>
    </message>
    <message>
        <source>Type numbers for a, L and ε.</source>
        <translation>Saisissez des nombres pour a, L et ε.</translation>
    </message>
    <message>
        <source>The window&apos;s x limits must be numbers, the minimum below the maximum.</source>
        <translation>Les limites en x de la fenêtre doivent être des nombres, le minimum sous le maximum.</translation>
    </message>
    <message>
        <source>   leaves at x = %1</source>
        <translation>   sort en x = %1</translation>
    </message>
    <message>
        <source>ε = %1   no δ</source>
        <translation>ε = %1   aucun δ</translation>
    </message>
    <message>
        <source>Limits by ε and δ of %1, a = %2, L = %3, ε = %4.</source>
        <translation>Limites par ε et δ de %1, a = %2, L = %3, ε = %4.</translation>
    </message>
    <message>
        <source>slope = %1</source>
        <translation>pente = %1</translation>
    </message>
    <message>
        <source>Slope =%1</source>
        <translation>Pente =%1</translation>
    </message>
    <message>
        <source>the tangent at x = %1</source>
        <translation>la tangente en x = %1</translation>
    </message>
    <message>
        <source>Mean value theorem for %1 on [%2, %3].</source>
        <translation>Théorème des accroissements finis pour %1 sur [%2, %3].</translation>
    </message>
    <message>
        <source>the guess x = %1</source>
        <translation>l&apos;estimation x = %1</translation>
    </message>
    <message>
        <source>Newton&apos;s method on %1.</source>
        <translation>Méthode de Newton sur %1.</translation>
    </message>
    <message>
        <source>No guesses yet; first guess box: %1.</source>
        <translation>Pas encore d&apos;estimations ; case de la première estimation : %1.</translation>
    </message>
    <message>
        <source>Guesses: %1.</source>
        <translation>Estimations : %1.</translation>
    </message>
    <message>
        <source>(undefined at t = %1)</source>
        <translation>(non définie en t = %1)</translation>
    </message>
    <message>
        <source>the point at t = %1</source>
        <translation>le point en t = %1</translation>
    </message>
    <message>
        <source>the curve %1, %2 for t from %3 to %4</source>
        <translation>la courbe %1, %2 pour t de %3 à %4</translation>
    </message>
    <message>
        <source>Understood: x = %1,  y = %2</source>
        <translation>Compris : x = %1,  y = %2</translation>
    </message>
    <message>
        <source>%1 bars</source>
        <extracomment>a sum&apos;s bars as drawn (&quot;Left Endpoint bars&quot;)</extracomment>
        <translation>rectangles %1</translation>
    </message>
    <message>
        <source>%1 bars of %2</source>
        <translation>rectangles %1 de %2</translation>
    </message>
    <message>
        <source>Delta x = %1</source>
        <translation>Delta x = %1</translation>
    </message>
    <message>
        <source>Delta x = %1, not a number</source>
        <translation>Delta x = %1, pas un nombre</translation>
    </message>
    <message>
        <source>the secant from x = %1</source>
        <translation>la sécante depuis x = %1</translation>
    </message>
    <message>
        <source>Tangent problem for %1 at x = %2, Delta x = %3.</source>
        <translation>Problème de la tangente pour %1 en x = %2, Delta x = %3.</translation>
    </message>
    <message>
        <source>Secant through %1: %2.</source>
        <translation>Sécante par %1 : %2.</translation>
    </message>
    <message>
        <source>No Taylor polynomial: %1.</source>
        <translation>Pas de polynôme de Taylor : %1.</translation>
    </message>
    <message>
        <source>Taylor polynomials of %1.</source>
        <translation>Polynômes de Taylor de %1.</translation>
    </message>
    <message>
        <source>No terms yet; centre box: %1.</source>
        <translation>Pas encore de termes ; case du centre : %1.</translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>the last of a list of screens (&quot;..., Newton&apos;s method and Taylor polynomials&quot;)</extracomment>
        <translation>et %1</translation>
    </message>
    <message>
        <source>A launcher opens %1 demonstration screens: %2.</source>
        <translation>Un lanceur ouvre %1 écrans de démonstration : %2.</translation>
    </message>
    <message>
        <source>Left</source>
        <extracomment>a sum&apos;s rule (left endpoints) in the convergence table and the area grid</extracomment>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>a sum&apos;s rule (right endpoints) in the convergence table and the area grid</extracomment>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Trapezoid</source>
        <translation>Trapèzes</translation>
    </message>
    <message>
        <source>Simpson</source>
        <translation>Simpson</translation>
    </message>
    <message>
        <source>The step was not added: %1.</source>
        <translation>L&apos;étape n&apos;a pas été ajoutée : %1.</translation>
    </message>
    <message>
        <source>Calculus demonstrations for the classroom. %1
Qt&apos;s standard options (-platform, -style, ...) are accepted.</source>
        <translation>Démonstrations d&apos;analyse pour la classe. %1
Les options standard de Qt (-platform, -style, ...) sont acceptées.</translation>
    </message>
    <message>
        <source>lesson</source>
        <extracomment>the name of the command line&apos;s argument in `plotto --help`</extracomment>
        <translation>leçon</translation>
    </message>
    <message>
        <source>A lesson to open (a .plotto file).</source>
        <translation>Une leçon à ouvrir (un fichier .plotto).</translation>
    </message>
    <message>
        <source>[lesson]</source>
        <translation>[leçon]</translation>
    </message>
    <message>
        <source>Lists the demonstration screens, one a line in teaching order, separated by tabs: key, button, menu entry, classic or addition (an addition opens from More Demonstrations), the entry&apos;s Alt letter.</source>
        <translation>Liste les écrans de démonstration, un par ligne dans l&apos;ordre d&apos;enseignement, séparés par des tabulations : clé, bouton, entrée de menu, classique ou ajout (un ajout s&apos;ouvre depuis Autres démonstrations), la lettre Alt de l&apos;entrée.</translation>
    </message>
    <message>
        <source>Opens a screen at the start: %1.</source>
        <translation>Ouvre un écran au démarrage : %1.</translation>
    </message>
    <message>
        <source>name</source>
        <extracomment>the value of --screen in `plotto --help`</extracomment>
        <translation>nom</translation>
    </message>
    <message>
        <source>Writes the lesson as a worksheet to a PDF file, one step a page, and ends, with no window shown.</source>
        <translation>Écrit la leçon comme fiche d&apos;exercices dans un fichier PDF, une étape par page, et se termine sans afficher de fenêtre.</translation>
    </message>
    <message>
        <source>file.pdf</source>
        <translation>fichier.pdf</translation>
    </message>
    <message>
        <source>With --worksheet: leaves the results as boxes to fill in, and writes the answers to a second file (NAME-answers.pdf).</source>
        <translation>Avec --worksheet : laisse les résultats en cases à remplir et écrit les réponses dans un second fichier (NOM-answers.pdf).</translation>
    </message>
    <message>
        <source>Shows the program in a language: %1 (English is the default; without this, the language chosen in Tools, Language, else the desktop&apos;s).</source>
        <translation>Affiche le programme dans une langue : %1 (l&apos;anglais par défaut ; sans cette option, la langue choisie dans Outils, Langue, sinon celle du bureau).</translation>
    </message>
    <message>
        <source>code</source>
        <extracomment>the value of --lang in `plotto --help`</extracomment>
        <translation>code</translation>
    </message>
    <message>
        <source>addition</source>
        <extracomment>a screen&apos;s kind in `plotto --screens`: one of the seed&apos;s eight, or one added since</extracomment>
        <translation>ajout</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>classique</translation>
    </message>
    <message>
        <source>%1: answers</source>
        <translation>%1 : réponses</translation>
    </message>
    <message>
        <source>%1, and %2 or %3, both the natural logarithm</source>
        <translation>%1, et %2 ou %3, tous deux le logarithme népérien</translation>
    </message>
    <message>
        <source>A to E</source>
        <translation>A à E</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Signed: f - g</source>
        <translation>Algébrique : f - g</translation>
    </message>
    <message>
        <source>Unsigned: |f - g|</source>
        <translation>Absolue : |f - g|</translation>
    </message>
    <message>
        <source>A to F</source>
        <translation>A à F</translation>
    </message>
    <message>
        <source>leaves at x =</source>
        <translation>sort en x =</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>Nouveau terme</translation>
    </message>
    <message>
        <source>Lagrange bound</source>
        <translation>Borne de Lagrange</translation>
    </message>
    <message>
        <source>%1 is %2. Press to raise by one; the decrease action lowers by one.</source>
        <translation>%1 vaut %2. Appuyez pour augmenter de un ; l&apos;action de diminution diminue de un.</translation>
    </message>
    <message>
        <source>%1 holds %2, which is not a number.</source>
        <translation>%1 contient %2, qui n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>%1 strips is the most this screen sums.</source>
        <translation>%1 bandes est le maximum que cet écran additionne.</translation>
    </message>
    <message>
        <source>the screen has no control named &apos;%1&apos;</source>
        <translation>l&apos;écran n&apos;a pas de contrôle nommé &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the box &apos;%1&apos; cannot take %2</source>
        <translation>la case &apos;%1&apos; ne peut pas prendre %2</translation>
    </message>
    <message>
        <source>the scroll bar &apos;%1&apos; cannot take that position</source>
        <translation>la barre &apos;%1&apos; ne peut pas prendre cette position</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is ticked or not: true or false</source>
        <translation>&apos;%1&apos; est cochée ou non : true ou false</translation>
    </message>
    <message>
        <source>the screen has no menu entry &apos;%1&apos;</source>
        <translation>l&apos;écran n&apos;a pas d&apos;entrée de menu &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the screen has no button &apos;%1&apos;</source>
        <translation>l&apos;écran n&apos;a pas de bouton &apos;%1&apos;</translation>
    </message>
    <message>
        <source>This is not a lesson: %1 at character %2.</source>
        <translation>Ce n&apos;est pas une leçon : %1 au caractère %2.</translation>
    </message>
    <message>
        <source>The lesson has no valid version number.</source>
        <translation>La leçon n&apos;a pas de numéro de version valide.</translation>
    </message>
    <message>
        <source>Step %1: unknown screen &apos;%2&apos; (the screens are %3).</source>
        <translation>Étape %1 : écran inconnu &apos;%2&apos; (les écrans sont %3).</translation>
    </message>
    <message>
        <source>Step %1: an action names no button to click or menu entry to choose.</source>
        <translation>Étape %1 : une action ne nomme aucun bouton à cliquer ni entrée de menu à choisir.</translation>
    </message>
    <message>
        <source>The lesson cannot be written to %1: %2.</source>
        <translation>La leçon ne peut pas être écrite dans %1 : %2.</translation>
    </message>
    <message>
        <source>The lesson could not be saved to %1: %2. Nothing was changed there.</source>
        <translation>La leçon n&apos;a pas pu être enregistrée dans %1 : %2. Rien n&apos;y a été modifié.</translation>
    </message>
    <message>
        <source>The lesson %1 cannot be read: %2.</source>
        <translation>La leçon %1 ne peut pas être lue : %2.</translation>
    </message>
    <message>
        <source>%1 is too large to be a lesson.</source>
        <translation>%1 est trop grand pour être une leçon.</translation>
    </message>
    <message>
        <source>black</source>
        <translation>noir</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>jaune</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanc</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>light blue</source>
        <translation>bleu clair</translation>
    </message>
    <message>
        <source>light green</source>
        <translation>vert clair</translation>
    </message>
    <message>
        <source>light cyan</source>
        <translation>cyan clair</translation>
    </message>
    <message>
        <source>light red</source>
        <translation>rouge clair</translation>
    </message>
    <message>
        <source>light magenta</source>
        <translation>magenta clair</translation>
    </message>
    <message>
        <source>light yellow</source>
        <translation>jaune clair</translation>
    </message>
    <message>
        <source>bright white</source>
        <translation>blanc brillant</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>a drawn curve and the colour it is drawn in: &quot;y = x^2, in blue&quot;</extracomment>
        <translation>%1, en %2</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation : %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[options]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Arguments :</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Affiche l&apos;aide sur les options de la ligne de commande.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Affiche l&apos;aide avec les options propres à Qt.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Affiche les informations de version.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Option inconnue &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Options inconnues : %1.</translation>
    </message>
</context>
</TS>
