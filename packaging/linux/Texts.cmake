# What a desktop, a software centre and a package list say of the program, in its ten languages.

set(description_en "\
Zandrove runs on both PCs, the old one and the new one. The two find each
other on the local network or over a direct cable, with no server and no
account in between. Once one user has asked and the other has said yes, the
chosen folders cross, and every file is verified by its checksum.

Everything lands where it was: documents with the documents, pictures with
the pictures. What is on the new PC already is left alone, and a report on
both sides tells what has moved.

Between two Windows PCs applications and settings move as well.

There are a program with a window, in ten languages, and one for terminals,
servers and scripts.")

set(summary_en "Move your files from an old PC to a new one")
set(summary_de "Dateien von einem alten PC auf einen neuen übertragen")
set(summary_es "Traslade sus archivos de un PC antiguo a uno nuevo")
set(summary_fr "Transférez vos fichiers d’un ancien PC vers un nouveau")
set(summary_it "Trasferire i file da un vecchio PC a uno nuovo")
set(summary_ja "古い PC から新しい PC へファイルを移行します")
set(summary_ko "이전 PC의 파일을 새 PC로 옮깁니다")
set(summary_nl "Verplaats uw bestanden van een oude pc naar een nieuwe")
set(summary_pt "Mova os seus ficheiros de um PC antigo para um novo")
set(summary_zh_TW "將檔案從舊電腦移轉到新電腦")

set(keywords_en "migration;transfer;move;backup;")
set(keywords_de "Migration;Umzug;übertragen;Dateien;")
set(keywords_es "migración;transferencia;traslado;archivos;")
set(keywords_fr "migration;transfert;déplacer;fichiers;")
set(keywords_it "migrazione;trasferimento;spostare;file;")
set(keywords_ja "移行;引っ越し;転送;ファイル;")
set(keywords_ko "이전;마이그레이션;전송;파일;")
set(keywords_nl "migratie;overzetten;verhuizen;bestanden;")
set(keywords_pt "migração;transferência;mover;ficheiros;")
set(keywords_zh_TW "移轉;轉移;搬移;檔案;")

# The same as lines of a desktop entry and of AppStream metadata.
set(desktop_comments "Comment=${summary_en}")
set(desktop_keywords "Keywords=${keywords_en}")
set(metainfo_summaries "<summary>${summary_en}</summary>")
foreach(language de es fr it ja ko nl pt zh_TW)
    string(APPEND desktop_comments "\nComment[${language}]=${summary_${language}}")
    string(APPEND desktop_keywords "\nKeywords[${language}]=${keywords_${language}}")
    string(APPEND metainfo_summaries "\n  <summary xml:lang=\"${language}\">${summary_${language}}</summary>")
endforeach()
string(REPLACE "\n\n" "</p>\n    <p>" metainfo_description "<p>${description_en}</p>")
