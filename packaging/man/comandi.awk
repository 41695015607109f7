# One command's --help as a section of a manual page. Given: comando, the name of the command.
function scritto(testo) {
    gsub(/\\/, "\\e", testo)
    gsub(/-/, "\\-", testo)
    return testo
}
# A line of running text: one that begins with a sign of the formatter is led by a zero-width one.
function riga(testo) {
    testo = scritto(testo)
    print (testo ~ /^[.']/ ? "\\&" : "") testo
}
BEGIN { printf ".SS %s\n", scritto(comando) }
/^Uso: / {
    print ".PP"
    print ".B " scritto(substr($0, 6))
    next
}
/^Esempi:$/ {
    print ".PP\nEsempi:\n.PP\n.nf"
    esempi = 1
    next
}
/^[^ ].*:$/ { next }    # headings: what stands below speaks for itself
/^ *$/ { next }
esempi { riga($0); next }
/^          +[^ ]/ {    # the words of an option whose name fills its line
    sub(/^ +/, "")
    riga($0)
    next
}
/^  [^ ]/ {
    sub(/^  /, "")
    posto = match($0, /   *[^ ]/)
    nome = posto ? substr($0, 1, posto - 1) : $0
    print ".TP\n.B " scritto(nome)
    if (posto) {
        resto = substr($0, posto)
        sub(/^ +/, "", resto)
        riga(resto)
    }
    next
}
{ riga($0) }
END { if (esempi) print ".fi" }
